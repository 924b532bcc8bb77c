#pragma once

#include "Export.h"
#include "ULoop.h"
#include "UString.h"
#include "VantoListBoxItemMEG.h"

#include <cstdint>

/// The moment of a call, from a text "YYYY-MM-DD hh:mm"; any other text is kept whole.
class TOOLKIT_EXPORT CallMomentMEG {
public:
    explicit CallMomentMEG(const UString& moment);

    /// True when the date is today's by the local time of the system. A text of another form never is.
    bool isPresentDay() const;

    /// The parts of the text; both are the whole text if it has another form.
    const UString& date() const { return mDate; }
    const UString& time() const { return mTime; }

    /// What the glass shows: the time of a call of today, else the date, without the year if it is this one.
    UString shown() const;

private:
    UString mDate;
    UString mTime;
    bool mIsParsed = false;
};

/// A row of the call log: who, how many calls, and the time or the date of the last one.
class TOOLKIT_EXPORT CallLogListItemMEG : public VantoListBoxItemMEG {
public:
    /// 0 private, 1 and 2 business, 3 mobile, 4 none.
    enum IconType : int {};

    /// `bold` marks calls that nobody has looked at yet. `reserved` and `variant` are settings of the maker's
    /// that change nothing here.
    CallLogListItemMEG(const UString& name, const UString& number, IconType iconType, const UString& date,
        int numberOfCalls, bool bold, bool reserved, bool completedElsewhere, int variant);

    int getItemType() const override { return CallLogRow; }

    void setBold(bool bold);
    bool isBold() const { return mIsBold; }
    IconType getIconType() const { return mIconType; }
    int numberOfCalls() const { return mNumberOfCalls; }
    bool dateIsPresentDay() const { return mMoment.isPresentDay(); }
    UString time() const { return mMoment.time(); }
    UString date() const { return mMoment.date(); }

    /// True for a call that was answered at another telephone.
    bool completedElsewhere() const { return mIsCompletedElsewhere; }

    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;

private:
    CallMomentMEG mMoment;
    IconType mIconType;
    int mNumberOfCalls;
    bool mIsBold;
    bool mIsCompletedElsewhere;
};

/// A row of the list of call backs that wait.
class TOOLKIT_EXPORT CallBackListItemMEG : public VantoListBoxItemMEG {
public:
    /// As in the call log.
    enum IconType : int {};
    enum CallBackType : int {
        NoReply = 1,
        Busy = 2,
    };
    enum CallBackState : int {
        Active = 1,
        Paused = 2,
    };

    CallBackListItemMEG(
        const UString& text, CallBackType type, CallBackState state, IconType iconType, const UString& date);

    int getItemType() const override { return CallBackRow; }

    CallBackType getCallBackType() const { return mType; }
    CallBackState getCallBackState() const { return mState; }
    IconType getIconType() const { return mIconType; }
    bool dateIsPresentDay() const { return mMoment.isPresentDay(); }
    UString time() const { return mMoment.time(); }
    UString date() const { return mMoment.date(); }

    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;

private:
    CallMomentMEG mMoment;
    CallBackType mType;
    CallBackState mState;
    IconType mIconType;
};

/// A row of the line overview: the state of a line by an icon, its name and its identity.
class TOOLKIT_EXPORT LineOverviewListItem : public VantoListBoxItemMEG {
public:
    /// The states 0 to 9; a number outside them shows no icon.
    enum LineStateIconType : int {};

    LineOverviewListItem(LineStateIconType iconType, const UString& name, const UString& identity, bool hasArrow);

    int getItemType() const override { return LeftIconRow; }

    /// Prefix, name and identity, with a blank between those that are not empty.
    UString getText() const override;

    /// Replaces the name.
    void setText(const UString& text) override { setName(text); }

    virtual void setIconType(LineStateIconType iconType);
    LineStateIconType getIconType() const { return mIconType; }
    virtual void setName(const UString& name);
    virtual void setIdentity(const UString& identity);
    virtual void setPrefix(const UString& prefix);

    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;

private:
    UString label() const;

    LineStateIconType mIconType;
    UString mName;
    UString mIdentity;
    UString mPrefix;
};

/// A row with a bar in which a block goes to and fro, for work of unknown length.
class TOOLKIT_EXPORT InfiniteBarItemMEG : public VantoListBoxItemMEG {
public:
    InfiniteBarItemMEG();

    int getItemType() const override { return LeftIconRow; }

    /// Shows the bar and lets it run for as long as the row lives; while nobody paints it, it stands still.
    void startInfiniteProgressBar();
    bool isRunning() const { return mIsRunning; }

    void timerEvent(UTimerEvent* event) override;
    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;

private:
    mutable UTimer mTimer; // from one painting to the next
    int mStep = 0;
    bool mIsRunning = false;
};
