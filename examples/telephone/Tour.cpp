#include "Tour.h"

const char* const Tour = R"(
say The telephone at rest: its number, and what there is to tell.
expect string0:4711
show

say Digits open the dialer.
type 4712
expect caption:Dial: 4712
show

say OK calls. The other end of this exchange acts by itself: it rings, and answers.
press OK
expect icon0:Connecting
advance 1s
expect icon0:Ringing
show
advance 4s
expect icon0:CallStateActive
advance 42s
expect string0:Anna Berg  0:42
show

say Somebody else calls, over whatever is shown.
incoming
expect string0:Accept?
show

say OK takes the call, and the first one is held.
press OK
expect string0:Bob Ortiz  0:00
show
)";
