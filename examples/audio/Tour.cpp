#include "Tour.h"

const char* const Tour = R"(
say A list: its title, and the row that the highlight is on.
expect caption:Audio output
expect Speaker (in use)
show

say Down moves to the next row.
press DOWN
expect HeadSet
show

say OK asks a question, which lies over the list until it is answered.
press OK
expect Use HeadSet?*
show

say Down moves to the other answer, and Left would go back to the list.
press DOWN
expect No
show

say OK takes the first answer. The row says so.
press UP
expect Yes
press OK
expect HeadSet (in use)
show
)";
