#pragma once

namespace DisplayAPI {

/// A row of the directory.
class PhonebookItem {
public:
    /// What stands before a directory entry or a menu command; the numbers are fixed.
    enum IconType : int {
        NoIcon = 0,
        Private = 1,
        Business1 = 2,
        Business2 = 3,
        Mobile = 4,
        Other = 5,
        ImageIcon = 6, ///< The command carries an image of its own.
        Folder = 7,
        Group = 8,
        Selection = 39,
        Service = 51,
        Feature = 52,
    };
};

}
