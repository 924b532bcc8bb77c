#pragma once

#include <DisplayAPI/Export.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace DisplayAPI {

/// Tells a tool, such as a test robot, of each command on its way to the application. An application has no use for it.
///
/// Threads: any.
class DISPLAYAPI_EXPORT DeliveryWatch {
public:
    struct Delivery {
        std::string text;   ///< What the command shows, see Command::getText(); empty for a null command.
        int type = 0;       ///< Command::Type; 0 for a null command.
        std::string screen; ///< The class of the screen, such as "List"; empty without one.
    };
    using Observer = std::function<void(const Delivery& delivery)>;

    /// Names the one observer; another takes its place, an empty one takes it away. It is called on the worker, before
    /// the listener is; changes of items are not told. When this returns, no call of the earlier observer is under way;
    /// so it must not be called by an observer.
    static void setObserver(Observer observer);

    /// How many deliveries there have been, commands and changes of items; nothing while one is under way or waits. The
    /// same number twice means that the application has been told nothing in between.
    static std::optional<std::uint64_t> countAtRest();
};

}
