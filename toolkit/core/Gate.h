#pragma once

#include "Disturb.h"
#include "Export.h"

#include <atomic>
#include <cstdint>

/// The one place where threads of the toolkit sleep: a counter that never goes above its maximum, with an
/// end that lets a waiter go without a count.
///
/// A waiter may destroy the gate as soon as it is awake: the change of the word is the opener's last touch of
/// it, and the wake call behind uses the address alone. It may then wake a stranger, so every sleep tests its
/// word again. Nothing spins.
class TOOLKIT_EXPORT Gate {
public:
    /// The maximum is at most 32767, and the count at most the maximum.
    explicit Gate(std::uint32_t count = 0, std::uint32_t maximum = 1);
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;

    /// How a wait ended.
    enum class End {
        Passed,
        Abandoned,
        TimeUp,
    };

    /// Takes one count, and sleeps until there is one, until abandon(), or until `milliseconds` have passed; a
    /// negative number means without limit.
    End passWithin(int milliseconds);

    /// The same; true if it has passed.
    bool pass(int milliseconds = -1) { return passWithin(milliseconds) == End::Passed; }

    /// Adds a count, unless the maximum is reached, and wakes one sleeper if there is any.
    void open();

    /// Lets one waiter go with the result false; kept if nobody waits yet.
    void abandon();

private:
    static constexpr std::uint32_t CountMask = 0x7FFF;
    static constexpr std::uint32_t Abandoned = 0x8000;
    static constexpr std::uint32_t OneSleeper = 0x10000;

    End passSlowly(int milliseconds);
    static void wakeOne(std::atomic<std::uint32_t>* word);

    const std::uint32_t mMaximum;

    // Bits 0 to 14 count, bit 15 is the abandonment, the bits above count the sleepers.
    std::atomic<std::uint32_t> mWord;
};

inline Gate::End Gate::passWithin(int milliseconds)
{
    disturb();
    std::uint32_t word = mWord.load(std::memory_order_relaxed);
    while (word & CountMask) {
        if (mWord.compare_exchange_weak(word, word - 1, std::memory_order_acquire, std::memory_order_relaxed))
            return End::Passed;
    }
    return passSlowly(milliseconds);
}

inline void Gate::open()
{
    disturb();
    std::uint32_t word = mWord.load(std::memory_order_relaxed);
    std::uint32_t next;
    do {
        next = (word & CountMask) < mMaximum ? word + 1 : word;
    } while (!mWord.compare_exchange_weak(word, next, std::memory_order_release, std::memory_order_relaxed));
    if (next >= OneSleeper)
        wakeOne(&mWord);
    disturb(); // whom it let in may be the first to go on
}
