#pragma once

namespace DisplayAPI {

/// Who has called whom in a call under way, by its number. No number is shown on this telephone.
class ActiveCallDirection {
public:
    enum CallDirection : int {};
};

}
