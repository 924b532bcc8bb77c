#include "IdleDisplayMEG.h"

#include "ContextMenuMEG.h"
#include "EventTypes.h"
#include "Icons.h"
#include "TextBlock.h"
#include "TextCells.h"
#include "Types.h"
#include "UEvent.h"
#include "UPainter.h"
#include "VantoListBoxMEG.h"

#include <algorithm>

namespace {

const URect FirstLine(0, 0, 161, 14);
const URect SecondLine(0, 15, 161, 30);
constexpr unsigned long long NoteTime = 3000;
constexpr unsigned short CallBackIcon = 6;
constexpr unsigned short MessagesIcon = 7;
constexpr unsigned short ForwardedIcon = 8;
constexpr unsigned short InfoIcon = 21;
constexpr int IconColumns = 2;

bool isLineIn(const std::vector<URect>& rects, const URect& line)
{
    return std::any_of(rects.begin(), rects.end(), [&line](const URect& rect) { return rect.contains(line); });
}

UString counted(int count, const char* one, const char* many)
{
    return UString(std::to_string(count) + (count == 1 ? one : many));
}

UString oneLine(const UString& text)
{
    return UString(TextBlock::oneLine(text.toUTF8()));
}

}

IdleDisplayMEG::IdleDisplayMEG(const UString& text, bool flag)
    : mText(text)
    , mFlag(flag)
    , mNoteTimer(this, NoteTime)
    , mMenu(new ContextMenuMEG(this, false, 0, {}))
{
    setCoordinates(0, 0, 161, 30);
    mMenu->setListener(this);
}

IdleDisplayMEG::~IdleDisplayMEG() = default;

// Notes

void IdleDisplayMEG::addSystemMessage(const UString& text)
{
    mSystemMessages.push_back(text);
    notesChanged();
}

void IdleDisplayMEG::clearSystemMessages()
{
    mSystemMessages.clear();
    notesChanged();
}

std::vector<IdleDisplayMEG::Note> IdleDisplayMEG::notes() const
{
    std::vector<Note> notes;
    if (!mEmergencyText.isEmpty())
        notes.push_back({"Emergency", Icons::Emergency, mEmergencyText});
    for (const UString& message : mSystemMessages)
        notes.push_back({"SystemMessage", InfoIcon, message});
    if (isForwarded())
        notes.push_back({"Forwarded", ForwardedIcon, mForwardingAddress, Place::FirstLine});
    if (!mServerForwardingAddress.isEmpty())
        notes.push_back({"ServerForwarded", ForwardedIcon, mServerForwardingAddress});
    if (mMissedCalls > 0)
        notes.push_back({"MissedCalls", Icons::ClearedCall, counted(mMissedCalls, " missed call", " missed calls")});
    if (mMessages > 0)
        notes.push_back({"Messages", MessagesIcon, counted(mMessages, " message", " messages")});
    if (mHasCallBack)
        notes.push_back({"CallBack", CallBackIcon, {}, Place::Mark});
    if (mHasMobileUser)
        notes.push_back({"MobileUser", Icons::MobileTelephone, {}, Place::Mark});
    return notes;
}

std::vector<IdleDisplayMEG::Note> IdleDisplayMEG::notesAt(Place place) const
{
    std::vector<Note> found = notes();
    std::erase_if(found, [place](const Note& note) { return note.place != place; });
    return found;
}

void IdleDisplayMEG::notesChanged()
{
    mTurns.clear();
    for (const Note& note : notesAt(Place::Turn)) {
        for (const UString& line : TextCells::lines(oneLine(note.text), marksColumn() - IconColumns))
            mTurns.push_back({note.word, note.icon, line, note.place});
        // Nothing takes its turn beside an emergency.
        if (!mEmergencyText.isEmpty())
            break;
    }
    if (mTurns.size() < 2)
        mNoteTimer.stop();
    else if (!mNoteTimer.isRunning())
        mNoteTimer.start();
    refresh();
}

void IdleDisplayMEG::timerEvent(UTimerEvent*)
{
    ++mShownNote;
    refresh();
}

// Menu

bool IdleDisplayMEG::hasMenuRows() const
{
    return mMenu && mMenu->listBox && mMenu->listBox->count() > 0;
}

void IdleDisplayMEG::openMenu()
{
    mMenu->listBox->setCurrentItem(0);
    mMenu->slideIn();
    contextMenuActive = 1;
    emit(EventType::ContentChanged, this);
}

void IdleDisplayMEG::slideMenuOut()
{
    if (contextMenuActive == 0)
        return;
    contextMenuActive = 0;
    if (mMenu)
        mMenu->slideOut();
}

void IdleDisplayMEG::closeMenu()
{
    slideMenuOut();
    emit(EventType::ContentChanged, this);
}

void IdleDisplayMEG::event(UEvent* event)
{
    // What the menu raises; its moves are silent.
    if (event->type == EventType::LeftPressed)
        closeMenu();
    else if (event->type == EventType::RowChosen && relay(*event))
        closeMenu();
}

// The menu never stands open over another screen.

void IdleDisplayMEG::setVisible(bool visible)
{
    UWidget::setVisible(visible);
    if (!visible)
        slideMenuOut();
}

void IdleDisplayMEG::parentChanged()
{
    if (!parentWidget())
        slideMenuOut();
}

void IdleDisplayMEG::childLeft(UWidget* child)
{
    UWidget::childLeft(child);
    if (child == mMenu)
        mMenu = nullptr;
}

bool IdleDisplayMEG::keyEvent(UKeyEvent* key)
{
    if (key->state() != UGlobal::KeyPressed)
        return true;
    if (UGlobal::isDialKey(key->key())) {
        if (UAgent* agent = listener())
            agent->keyEvent(key);
    } else if ((key->key() == UGlobal::KeyRight || key->key() == UGlobal::KeyOk) && hasMenuRows()) {
        openMenu();
    }
    return true;
}

// Screen text

UString IdleDisplayMEG::serialise() const
{
    return write(true, true);
}

UString IdleDisplayMEG::serialise(const std::vector<URect>& rects) const
{
    return write(isLineIn(rects, FirstLine), isLineIn(rects, SecondLine));
}

UString IdleDisplayMEG::write(bool hasFirstLine, bool hasSecondLine) const
{
    TextBlock block("IdleDisplay");
    if (hasFirstLine && !mLogoText.isEmpty())
        block.field("caption", mLogoText.toUTF8());
    if (hasFirstLine && !identity().isEmpty())
        block.field("string0", identity().toUTF8());
    for (const Note& note : hasSecondLine ? notes() : std::vector<Note>()) {
        block.beginSubitem("IdleDisplayItem");
        block.field("icon0", note.word);
        block.field("string0", note.text.toUTF8());
        block.endSubitem();
    }
    return block.finish();
}

// Painting

void IdleDisplayMEG::paint(UPainter& painter)
{
    painter.clearLines(0, 1);
    if (mIsSmall)
        paintIdentity(painter);
    paintNotes(painter, mIsSmall ? 1 : 0);
    paintMarks(painter);
}

void IdleDisplayMEG::paintIdentity(UPainter& painter) const
{
    int column = isForwarded() ? painter.icon(0, 0, ForwardedIcon) : 0;
    column += painter.text(
        0, column, oneLine(mForwardingAddress.isEmpty() ? identity() : mForwardingAddress), UPainter::Columns - column);
    painter.textRight(0, UPainter::Columns - 1, oneLine(mLogoText), UPainter::Columns - column - 1);
}

void IdleDisplayMEG::paintNotes(UPainter& painter, int firstLine) const
{
    for (int line = firstLine; line <= 1; ++line) {
        const std::size_t place = static_cast<std::size_t>(line - firstLine);
        if (place >= mTurns.size())
            return;
        const Note& note = mTurns[(mShownNote + place) % mTurns.size()];
        painter.text(line, painter.icon(line, 0, note.icon), note.text);
    }
}

int IdleDisplayMEG::marksColumn() const
{
    // The last one is the menu's.
    return UPainter::Columns - 1 - static_cast<int>(notesAt(Place::Mark).size()) * IconColumns;
}

void IdleDisplayMEG::paintMarks(UPainter& painter) const
{
    int column = marksColumn();
    for (const Note& mark : notesAt(Place::Mark))
        column += painter.icon(1, column, mark.icon);
    if (hasMenuRows())
        painter.mark(1, Icons::Mark::MoreBelow);
}
