#pragma once

namespace DisplayAPI {

/// The icons of the public interface.
class Icons {
public:
    /// An icon by its number; each operation tells which numbers it draws.
    enum IconType : int {};
};

}
