#include "HeldRows.h"

#include <DisplayAPI/ListItemPrivateIfc.h>

#include "GuiThread.h"
#include "Road.h"

#include <VantoListBoxItemMEG.h>
#include <VantoListBoxMEG.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace DisplayAPI {

std::atomic<unsigned int> HeldRows::refusedDeaths = 0;

HeldRows::Step::Step(HeldRows& rows)
    : mRows(&rows)
    , mOuter(rows.mSteps)
{
    rows.mSteps = this;
}

HeldRows::Step::~Step()
{
    if (mRows)
        mRows->mSteps = mOuter;
}

HeldRows::~HeldRows()
{
    endSteps();
    for (const Entry& entry : mEntries) {
        if (ListItem* row = entry.row.get())
            setHolder(*row, nullptr);
    }
}

ListItemPrivateIfc* HeldRows::halfOf(ListItem* row)
{
    return ListItem::exists(row) ? row->getPrivateImplemetation() : nullptr;
}

void HeldRows::deleteToolkitRow(ListItem& row)
{
    ListItemPrivateIfc* half = row.getPrivateImplemetation();
    VantoListBoxItemMEG* toolkitRow = half ? half->getVantoListItem() : nullptr;
    // Out of a list it is its half's.
    if (toolkitRow && toolkitRow->parentWidget())
        delete toolkitRow;
}

bool HeldRows::isFree(ListItem* row)
{
    ListItemPrivateIfc* half = halfOf(row);
    if (!half || (row->mHolder && !row->mIsLeaving))
        return false;
    const VantoListBoxItemMEG* toolkitRow = half->getVantoListItem();
    return !(toolkitRow && toolkitRow->parentWidget());
}

// Questions

std::vector<ListItem*> HeldRows::all() const
{
    std::vector<ListItem*> rows;
    std::lock_guard lock(mLock);
    rows.reserve(mEntries.size());
    for (const Entry& entry : mEntries) {
        ListItem* row = entry.isTold ? entry.row.get() : nullptr;
        if (row)
            rows.push_back(row);
    }
    return rows;
}

std::vector<HeldRows::Row> HeldRows::allIn() const
{
    std::vector<Row> rows;
    for (const Entry& entry : mEntries) {
        if (entry.isIn)
            rows.push_back(entry.row);
    }
    return rows;
}

ListItem* HeldRows::at(int index) const
{
    if (index < 0)
        return nullptr;
    for (const Entry& entry : mEntries) {
        if (entry.isIn && index-- == 0)
            return entry.row.get();
    }
    return nullptr;
}

int HeldRows::indexOf(const Row& row) const
{
    const std::size_t place = placeOf(row);
    if (place == NotFound || !mEntries[place].isIn)
        return -1;
    const auto begin = mEntries.begin();
    return static_cast<int>(std::count_if(
        begin, begin + static_cast<std::ptrdiff_t>(place), [](const Entry& entry) { return entry.isIn; }));
}

bool HeldRows::holds(const ListItem* row) const
{
    return ListItem::exists(row) && row->mHolder == this && !row->mIsLeaving;
}

void HeldRows::localeChanged(const std::string& locale)
{
    forEach([&locale](ListItem& row) {
        if (ListItemPrivateIfc* half = row.getPrivateImplemetation())
            half->localeChanged(locale);
    });
}

/// Rows mostly come and go at one of the ends.
std::size_t HeldRows::placeOf(const Row& row, std::size_t guess) const
{
    if (guess < mEntries.size() && mEntries[guess].row == row)
        return guess;
    for (std::size_t front = 0, behind = mEntries.size(); front < behind; ++front) {
        if (mEntries[--behind].row == row)
            return behind;
        if (mEntries[front].row == row)
            return front;
    }
    return NotFound;
}

HeldRows::Entry* HeldRows::find(const Row& row)
{
    const std::size_t place = placeOf(row);
    return place == NotFound ? nullptr : &mEntries[place];
}

void HeldRows::erase(const Row& row)
{
    const std::size_t place = placeOf(row);
    std::lock_guard lock(mLock);
    if (place != NotFound)
        mEntries.erase(mEntries.begin() + static_cast<std::ptrdiff_t>(place));
}

/// In front of the row that the toolkit's list has at this index.
std::vector<HeldRows::Entry>::iterator HeldRows::position(int index)
{
    if (index >= static_cast<int>(mEntries.size()))
        return mEntries.end();
    auto entry = mEntries.begin();
    for (; entry != mEntries.end() && index > 0; ++entry)
        index -= entry->isIn;
    return entry;
}

// Arrival

void HeldRows::expect(ListItem& row, int index)
{
    const Row key(&row);
    Entry entry{key};
    if (holds(&row)) {
        const Entry* known = find(key);
        entry.isTold = known && known->isTold;
        erase(key);
    } else if (row.mHolder) {
        row.mHolder->letGo(row);
    }
    {
        std::lock_guard lock(mLock);
        mEntries.insert(position(index), entry);
    }
    setHolder(row, this);
}

bool HeldRows::isExpected(const Row& row) const
{
    return holds(row.get()) && indexOf(row) < 0;
}

ListItemPrivateIfc* HeldRows::enter(const Row& row)
{
    Entry* entry = find(row);
    if (!entry || entry->isIn)
        return nullptr;
    ListItemPrivateIfc* half = halfOf(row.get());
    entry->isIn = half != nullptr;
    return half;
}

void HeldRows::settle(const Row& row)
{
    Entry* entry = find(row);
    std::lock_guard lock(mLock);
    if (entry)
        entry->isTold = entry->isTold || entry->isIn;
}

// Leaving

bool HeldRows::startLeaving(const Row& row, std::size_t guess)
{
    const std::size_t place = placeOf(row, guess);
    if (place == NotFound)
        return false;
    if (ListItem* item = row.get())
        item->mIsLeaving = true;
    return std::exchange(mEntries[place].isIn, false);
}

bool HeldRows::finishLeaving(const Row& row)
{
    const Entry* entry = find(row);
    if (!entry || entry->isIn)
        return false;
    erase(row);
    ListItem* item = row.get();
    if (item)
        setHolder(*item, nullptr);
    return item != nullptr;
}

void HeldRows::letGo(ListItem& item)
{
    const Row row(&item);
    const int index = indexOf(row);
    if (index < 0)
        finishLeaving(row);
    else
        giveBack(row, [this, index, &item] { takeOut(index, halfOf(&item)); });
}

void HeldRows::rowDies(const Row& row, ListItemPrivateIfc* half)
{
    const int index = indexOf(row);
    // Off the entries first: the notice may delete the holder, who deletes the rows that it still has.
    erase(row);
    if (index >= 0)
        takeOut(index, half);
}

bool HeldRows::giveToHalf(VantoListBoxMEG* list, ListItemPrivateIfc& half)
{
    assertGuiThread();
    VantoListBoxItemMEG* row = half.getVantoListItem();
    if (row && (!list || row->parentWidget() != list))
        return false;
    if (row)
        list->removeItem(row);
    half.gainOwnership();
    return true;
}

// The end

void HeldRows::loseToolkitRows()
{
    for (Entry& entry : mEntries)
        entry.isIn = false;
}

void HeldRows::deleteAll()
{
    // A row's destructor is the application's own, perhaps.
    const Step step(*this);
    while (step && !mEntries.empty()) {
        const Entry entry = mEntries.back();
        {
            std::lock_guard lock(mLock);
            mEntries.pop_back();
        }
        ListItem* row = entry.row.get();
        if (!row)
            continue;
        if (entry.isIn)
            deleteToolkitRow(*row);
        setHolder(*row, nullptr);
        delete row;
    }
}

void HeldRows::end()
{
    endSteps();
    loseToolkitRows();
    deleteAll();
}

void HeldRows::endSteps()
{
    for (Step* step = std::exchange(mSteps, nullptr); step; step = step->mOuter)
        step->mRows = nullptr;
}

void HeldRows::refuseDeath(ListItem& row, ListItemPrivateIfc* half)
{
    row.leave();
    ++refusedDeaths;
    std::unique_ptr<ListItemPrivateIfc> kept(half);
    Road::keepIfRefused(&row, kept);
}

bool HeldRows::forgetDead()
{
    const unsigned int deaths = refusedDeaths;
    if (std::exchange(mSeenDeaths, deaths) == deaths)
        return false;
    std::lock_guard lock(mLock);
    return std::erase_if(mEntries, [](const Entry& entry) { return !entry.row; }) > 0;
}

void HeldRows::setHolder(ListItem& row, RowHolder* holder)
{
    row.mHolder = holder;
    row.mIsLeaving = false;
}

}
