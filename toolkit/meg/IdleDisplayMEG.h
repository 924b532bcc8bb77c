#pragma once

#include "ULoop.h"
#include "UString.h"
#include "UWidget.h"

#include <cstddef>
#include <string>
#include <vector>

class ContextMenuMEG;

/// The screen of the telephone at rest: whose telephone it is, and what its user should know.
///
/// The first line has the own number, or the address to which calls are forwarded, and at its right edge the logo
/// text. The second line shows the notes one after the other, three seconds each: system messages, forwarding on the
/// server, missed calls, messages; a long one comes in parts, and an emergency text stands alone. The marks for call
/// back and mobile user stand at its right edge. OK or Right slides the menu in over it, if that has rows.
///
/// Opening and closing the menu by key raises ContentChanged, a choice RowChosen with the row as source. A dial key
/// that is pressed goes to the listener's keyEvent(); all other keys are taken and dropped. Setters raise nothing.
///
/// Threads: GUI thread only. Ownership: the parent's, without a parent the maker's; the menu is its own.
class TOOLKIT_EXPORT IdleDisplayMEG : public UWidget {
public:
    /// Text and flag are stored for whoever asks.
    IdleDisplayMEG(const UString& text, bool flag);
    ~IdleDisplayMEG() override;

    UString text() const { return mText; }
    bool flag() const { return mFlag; }

    // Notes

    void setMissedCalls(int count) { change(mMissedCalls, count); }
    int getMissedCalls() const { return mMissedCalls; }
    void setMessages(int count) { change(mMessages, count); }
    int getMessages() const { return mMessages; }
    void setCallBack(bool shown) { change(mHasCallBack, shown); }
    bool getCallBack() const { return mHasCallBack; }
    void displayMobileUserIcon(bool shown) { change(mHasMobileUser, shown); }

    void setEmergencyText(const UString& text) { change(mEmergencyText, text); }
    UString getEmergencyString() const { return mEmergencyText; }

    void addSystemMessage(const UString& text);
    void clearSystemMessages();

    void setServerBasedForwardingAddress(const UString& address) { change(mServerForwardingAddress, address); }
    UString getServerBasedForwardingAddress() const { return mServerForwardingAddress; }

    // First line

    /// The address takes the place of the own number.
    void setForwardingAddress(const UString& address) { change(mForwardingAddress, address); }
    UString getForwardingAddress() const { return mForwardingAddress; }
    void setForwardingIconVisible(bool visible) { change(mHasForwardingIcon, visible); }
    bool getForwardingIconVisible() const { return mHasForwardingIcon; }

    void setCurrentPhoneNumber(const UString& number) { change(mPhoneNumber, number); }
    void setDisplayIdUnicode(const UString& id) { change(mDisplayId, id); }

    /// Shows the display id instead of the own number.
    void setUseDisplayId(bool use) { change(mIsDisplayIdUsed, use); }

    void setLogoText(const UString& text) { change(mLogoText, text); }

    /// The name of a picture, which this telephone stores and does not show.
    void setLogo(const UString& logo) { mLogo = logo; }
    UString getLogo() const { return mLogo; }

    // Layouts around the dialer

    /// True is the layout above; false that of setBottomFullSize().
    void setSmallSize(bool small) { change(mIsSmall, small); }

    /// Gives both lines to the notes.
    void setBottomFullSize() { setSmallSize(false); }

    /// False takes the screen back while the dialer stands over it: it counts as no idle display and gets no keys.
    void prepareForDiallerScreen(bool active) { change(mIsActive, active); }

    // Menu

    /// Null once somebody has deleted it.
    ContextMenuMEG* getContextMenu() const { return mMenu; }

    /// 1 while the menu is slid in.
    unsigned char contextMenuActive = 0;

    /// Marks of the library's; nothing here reads them.
    unsigned char status1 = 0;
    unsigned char status2 = 0;

    // Screen text

    /// The whole block. Without any text it has no "string0:".
    UString serialise() const;

    /// The same with the lines that one of the rectangles holds.
    UString serialise(const std::vector<URect>& rects) const;

    // Overrides

    void setVisible(bool visible) override;
    void parentChanged() override;
    void childLeft(UWidget* child) override;
    void event(UEvent* event) override;
    void timerEvent(UTimerEvent* event) override;
    bool keyEvent(UKeyEvent* key) override;
    UWidget* focusTarget() override { return isVisible() && mIsActive ? this : nullptr; }
    Role role() const override { return mIsActive ? Role::IdleDisplay : Role::None; }
    void paint(UPainter& painter) override;

private:
    enum class Place {
        FirstLine,
        Turn, ///< On the second line, one after the other.
        Mark, ///< At the right edge of the second line, without a text.
    };

    /// Something that the user should know.
    struct Note {
        const char* word; // in the screen text
        unsigned short icon;
        UString text;
        Place place = Place::Turn;
    };

    template <typename Value>
    void change(Value& value, const Value& newValue)
    {
        value = newValue;
        notesChanged();
    }

    bool isForwarded() const { return mHasForwardingIcon || !mForwardingAddress.isEmpty(); }
    const UString& identity() const { return mIsDisplayIdUsed ? mDisplayId : mPhoneNumber; }
    std::vector<Note> notes() const;
    std::vector<Note> notesAt(Place place) const;
    int marksColumn() const;
    void notesChanged();
    bool hasMenuRows() const;
    void openMenu();
    void slideMenuOut();
    void closeMenu();
    UString write(bool hasFirstLine, bool hasSecondLine) const;
    void paintIdentity(UPainter& painter) const;
    void paintNotes(UPainter& painter, int firstLine) const;
    void paintMarks(UPainter& painter) const;

    UString mText;
    bool mFlag;

    int mMissedCalls = 0;
    int mMessages = 0;
    bool mHasCallBack = false;
    bool mHasMobileUser = false;
    UString mEmergencyText;
    std::vector<UString> mSystemMessages;
    UString mServerForwardingAddress;

    bool mHasForwardingIcon = false;
    UString mForwardingAddress;
    UString mPhoneNumber;
    UString mDisplayId;
    bool mIsDisplayIdUsed = false;
    UString mLogoText;
    UString mLogo;

    bool mIsSmall = true;
    bool mIsActive = true;
    std::vector<Note> mTurns; // what the second line shows one after the other: the notes, long ones in parts
    std::size_t mShownNote = 0;
    UTimer mNoteTimer;
    ContextMenuMEG* mMenu; // a child
};
