#pragma once

namespace DisplayAPI {

/// Whether somebody can be reached, by its number. No number is shown on this telephone.
class Presence {
public:
    enum PresenceState : int {};
};

}
