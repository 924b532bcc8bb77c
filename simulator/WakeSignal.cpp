#include "WakeSignal.h"

#include <cstdint>
#include <sys/eventfd.h>

namespace Simulator {

WakeSignal::WakeSignal()
    : mDescriptor(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
}

void WakeSignal::set() const
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(descriptor(), &one, sizeof one);
}

void WakeSignal::clear() const
{
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t taken = read(descriptor(), &count, sizeof count);
}

}
