#pragma once

#include <Disturb.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace DisplayAPI {

/// The living objects of a kind, asked by address before a pointer is followed. Each gets a running number when it
/// enters, which tells it from a later one at the same address.
///
/// Threads: any. Asking takes no lock, since it comes with every action of the user and every listener.
/// An answer about an object is right when its add() or remove() happened before the question.
template <typename T>
class LivingSet {
public:
    LivingSet() { useTableOf(SmallestTable); }
    LivingSet(const LivingSet&) = delete;
    LivingSet& operator=(const LivingSet&) = delete;

    /// An object that is in already keeps its number.
    void add(T* object)
    {
        std::lock_guard lock(mMutex);
        if (find(*mTable, object) != NotFound)
            return;
        if (++mCount * 4 > mTable.load()->size * 3)
            useTableOf(mTable.load()->size * 2);
        put(*mTable, object, ++mLastNumber);
    }

    void remove(const T* object)
    {
        std::lock_guard lock(mMutex);
        const std::size_t slot = find(*mTable, object);
        if (slot == NotFound)
            return;
        --mCount;
        // Others move to new slots meanwhile: whoever looks for them must look again.
        mMoves.store(mMoves + 1, std::memory_order_relaxed);
        closeGap(*mTable, slot);
        mMoves.store(mMoves + 1, std::memory_order_release);
    }

    /// The number of an object; 0 for null and for one that is not here.
    std::uint64_t numberOf(const T* object) const
    {
        const unsigned int moves = mMoves.load(std::memory_order_acquire);
        const std::uint64_t number = numberIn(*mTable.load(std::memory_order_acquire), object);
        if (moves % 2 == 0 && mMoves.load(std::memory_order_relaxed) == moves)
            return number;
        std::lock_guard lock(mMutex);
        return numberIn(*mTable, object);
    }

    bool contains(const T* object) const { return numberOf(object) != 0; }

    /// Those that are here, in no order.
    std::vector<T*> all() const
    {
        std::lock_guard lock(mMutex);
        std::vector<T*> found;
        const Table& table = *mTable;
        for (std::size_t slot = 0; slot < table.size; ++slot) {
            if (T* object = table.slots[slot].object)
                found.push_back(object);
        }
        return found;
    }

private:
    static constexpr std::size_t SmallestTable = 64;
    static constexpr std::size_t NotFound = SIZE_MAX;

    /// The number is written before the object comes, and stays behind when it goes.
    struct Slot {
        std::atomic<T*> object = nullptr;
        std::atomic<std::uint64_t> number = 0;
    };

    /// Open addressing with linear probing; three quarters of the slots at most are in use.
    struct Table {
        explicit Table(std::size_t theSize)
            : size(theSize)
            , slots(std::make_unique<Slot[]>(theSize))
        {
        }
        std::size_t home(const T* object) const
        {
            constexpr std::uint64_t goldenRatio = 0x9E3779B97F4A7C15U;
            return static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(object) * goldenRatio >> 32) & (size - 1);
        }
        std::size_t next(std::size_t slot) const { return (slot + 1) & (size - 1); }

        const std::size_t size; // a power of two
        std::unique_ptr<Slot[]> slots;
    };

    static std::size_t find(const Table& table, const T* object)
    {
        std::size_t slot = table.home(object);
        for (std::size_t tries = 0; tries < table.size; ++tries) {
            const T* found = table.slots[slot].object.load(std::memory_order_acquire);
            if (!found)
                return NotFound;
            if (found == object)
                return slot;
            slot = table.next(slot);
        }
        return NotFound;
    }

    // Acquired as well: whoever reads the number of a later object in the slot sees that others have moved.
    static std::uint64_t numberIn(const Table& table, const T* object)
    {
        const std::size_t slot = find(table, object);
        return slot == NotFound ? 0 : table.slots[slot].number.load(std::memory_order_acquire);
    }

    static void put(Table& table, T* object, std::uint64_t number)
    {
        std::size_t slot = table.home(object);
        while (table.slots[slot].object.load(std::memory_order_relaxed))
            slot = table.next(slot);
        table.slots[slot].number.store(number, std::memory_order_release);
        table.slots[slot].object.store(object, std::memory_order_release);
    }

    /// Empties a slot, and moves up what was put behind it for want of room.
    static void closeGap(Table& table, std::size_t gap)
    {
        table.slots[gap].object.store(nullptr, std::memory_order_release);
        for (std::size_t slot = table.next(gap);; slot = table.next(slot)) {
            T* object = table.slots[slot].object.exchange(nullptr, std::memory_order_acq_rel);
            if (!object)
                return;
            disturb();
            put(table, object, table.slots[slot].number.load(std::memory_order_relaxed));
        }
    }

    void useTableOf(std::size_t size)
    {
        auto larger = std::make_unique<Table>(size);
        if (const Table* table = mTable) {
            for (std::size_t slot = 0; slot < table->size; ++slot) {
                if (T* object = table->slots[slot].object)
                    put(*larger, object, table->slots[slot].number);
            }
        }
        mTable.store(larger.get(), std::memory_order_release);
        // The smaller ones stay, all of them no larger than the last: somebody may be reading one.
        mTables.push_back(std::move(larger));
    }

    mutable std::mutex mMutex;            // of those who change it
    std::atomic<unsigned int> mMoves = 0; // odd while objects change their slots
    std::atomic<Table*> mTable = nullptr;
    std::size_t mCount = 0;
    std::uint64_t mLastNumber = 0;
    std::vector<std::unique_ptr<Table>> mTables;
};

}
