#pragma once

namespace DisplayAPI {

/// How a second party came into a call. Numbers outside the enumeration have no effect.
enum ForwardedCallType : int {
    FORWARDED_ALWAYS = 0,    ///< The second party has its calls forwarded, or there is none.
    FORWARDED_ON_BUSY = 1,   ///< It was busy.
    FORWARDED_ON_DND = 2,    ///< It does not want to be disturbed.
    FORWARDED_NO_ANSWER = 3, ///< It did not answer.
    FORWARDED_FOR = 4,       ///< The call is for it, as one for a group is.
};

}
