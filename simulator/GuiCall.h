#pragma once

#include <functional>
#include <future>

namespace Simulator {

/// Runs a function on the GUI thread, after everything that was posted before it. Whoever waits for the future
/// gets std::future_error (broken promise) when the loop ends first. Threads: any.
std::future<void> callOnGui(std::function<void()> function);

/// The same, after the painting that follows what was posted before.
std::future<void> callOnGuiAfterPainting(std::function<void()> function);

}
