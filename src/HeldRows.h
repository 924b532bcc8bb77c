#pragma once

#include <DisplayAPI/ListItem.h>

#include "RowHolder.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

class VantoListBoxMEG;

namespace DisplayAPI {

/// The rows of a list in their order, each with what it takes to survive a notice.
///
/// A holder changes the toolkit's list first. That gives a notice, inside which the application may do anything: delete
/// the row, take it back, hand it to another holder, change the list again, clear it or delete it. So a row has its
/// entry here from the first step of its arrival to the last of its leaving, in the place where the toolkit has it, and
/// every step looks its entry up again behind a notice. What all() names changes last.
///
/// Threads: GUI thread, but for all(); once the loop has ended also the thread that deletes the holder.
/// Ownership: the rows are the holder's, who deletes them by deleteAll().
class HeldRows : public RowHolder {
public:
    /// A row as it is known across a notice.
    using Row = Living<ListItem>;

    /// Stands on the stack across notices and tells whether these rows are still held.
    class Step {
    public:
        explicit Step(HeldRows& rows);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        explicit operator bool() const { return mRows != nullptr; }

    private:
        friend class HeldRows;

        HeldRows* mRows;
        Step* mOuter;
    };

    HeldRows() = default;

    /// Rows that are still here have no holder any more, and are their owner's to delete.
    virtual ~HeldRows();
    HeldRows(const HeldRows&) = delete;
    HeldRows& operator=(const HeldRows&) = delete;

    /// The half of a row, null for null and for a row that has died or has none. The pointer is not followed if so.
    static ListItemPrivateIfc* halfOf(ListItem* row);

    /// True for a row with a half, which no holder and no toolkit list has, or which is on its way out of one.
    static bool isFree(ListItem* row);

    // Questions

    /// The living rows: one on its way in is not there yet, one on its way out still is. Threads: any.
    std::vector<ListItem*> all() const;

    /// The row at an index of the toolkit's list; null outside.
    ListItem* at(int index) const;

    /// The index in the toolkit's list, -1 for a row that is not there.
    int indexOf(const Row& row) const;

    /// True for a row that stands here or is about to, and not for one on its way out.
    bool holds(const ListItem* row) const;

    /// Calls `visit(row)` for each that lives, told or not. It may change the rows, and delete the holder.
    template <typename Visit>
    void forEach(Visit visit)
    {
        const Step step(*this);
        for (std::size_t i = 0; step && i < mEntries.size(); ++i) {
            if (ListItem* row = mEntries[i].row.get())
                visit(*row);
        }
    }

    /// Lets all rows read their translations again.
    void localeChanged(const std::string& locale);

    // Arrival

    /// Enters a row that is free or stands here in front of `index`, and holds it from now on.
    void expect(ListItem& row, int index);

    /// True for a row that is held and not yet in.
    bool isExpected(const Row& row) const;

    /// Brings an expected row in: `join(half)` puts it into the toolkit's list. Without effect if the row is in, or has
    /// been taken back meanwhile.
    template <typename Join>
    void bringIn(const Row& row, Join join)
    {
        ListItemPrivateIfc* half = enter(row);
        if (!half)
            return;
        const Step step(*this);
        join(half);
        if (step)
            settle(row);
    }

    // Leaving

    /// The toolkit's list is about to lose the row: from now on another holder may have it. False for a row that is not
    /// in. `guess` is the place where the row has its entry, perhaps.
    bool startLeaving(const Row& row, std::size_t guess = 0);

    /// The row is the caller's. False if it has died, or another has it already.
    bool finishLeaving(const Row& row);

    /// Both, with `takeOut()` between them.
    template <typename TakeOut>
    bool giveBack(const Row& row, TakeOut takeOut)
    {
        const Step step(*this);
        startLeaving(row);
        takeOut();
        return step && finishLeaving(row);
    }

    /// Takes all rows out that are in, each by `takeOut(half)`. They are the caller's when the last one is out.
    template <typename TakeOut>
    void giveBackAll(TakeOut takeOut)
    {
        const Step step(*this);
        const std::vector<Row> rows = allIn();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (!startLeaving(rows[i], i))
                continue;
            takeOut(halfOf(rows[i].get()));
            if (!step)
                return;
        }
        for (auto row = rows.rbegin(); row != rows.rend(); ++row)
            finishLeaving(*row);
    }

    /// Gives the row of a half, which a toolkit's list has, back to it. A row that stands elsewhere stays there, and
    /// the answer is false.
    static bool giveToHalf(VantoListBoxMEG* list, ListItemPrivateIfc& half);

    // The end

    /// The toolkit's list has deleted its rows, or they are no more to be touched.
    void loseToolkitRows();

    /// Deletes the rows from the last to the first, and with each the toolkit's row that it still has.
    void deleteAll();

    /// The same behind the toolkit's list; what is under way ends where it stands.
    void end();

    /// Forgets the rows whose deletion was refused since the loop had ended. True if there were any.
    bool forgetDead();

    /// The end of a row whose deletion was refused, since the loop had ended: whoever has it finds out when it asks.
    /// Its half stays until there is another loop. Threads: any.
    static void refuseDeath(ListItem& row, ListItemPrivateIfc* half);

    // A row tells its holder

    void rowDies(const Row& row, ListItemPrivateIfc* half) final;
    void letGo(ListItem& row) final;

protected:
    /// Takes the row of `half` out of the toolkit's list, which has it at `index`, and tells of it.
    virtual void takeOut(int index, ListItemPrivateIfc* half) = 0;

private:
    struct Entry {
        Row row;
        bool isIn = false;   // the toolkit's list has it
        bool isTold = false; // all() names it
    };

    static constexpr std::size_t NotFound = SIZE_MAX;

    void endSteps();
    std::vector<Row> allIn() const;
    ListItemPrivateIfc* enter(const Row& row);
    void settle(const Row& row);
    std::size_t placeOf(const Row& row, std::size_t guess = 0) const;
    Entry* find(const Row& row);
    void erase(const Row& row);
    std::vector<Entry>::iterator position(int index);
    static void deleteToolkitRow(ListItem& row);
    static void setHolder(ListItem& row, RowHolder* holder);

    static std::atomic<unsigned int> refusedDeaths;

    // Only the thread of the holder changes what all() reads, and takes the lock for that; so it reads without.
    mutable std::mutex mLock;
    std::vector<Entry> mEntries;
    Step* mSteps = nullptr; // those on the stack, the innermost first
    unsigned int mSeenDeaths = refusedDeaths;
};

}
