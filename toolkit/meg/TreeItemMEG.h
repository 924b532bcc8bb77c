#pragma once

#include "Export.h"
#include "ULoop.h"
#include "UString.h"
#include "UWidget.h"
#include "VantoListBoxItemMEG.h"

#include <cstdint>
#include <vector>

class TreeItemMEG;
class VantoListBoxMEG;

/// What a row of a tree consists of.
class TOOLKIT_EXPORT TreeElement {
public:
    enum Kind : int {
        BranchElement = 0,
        LeafElement = 1,
    };

    virtual int elementKind() const = 0;

protected:
    TreeElement() = default;
    ~TreeElement() = default;
};

/// The first line of a call's row: state icon, text, marks and the running duration.
///
/// The duration starts at 0:00 when the call is connected for the first time, and raises ContentChanged every
/// second while it runs. Threads: GUI thread only.
class TOOLKIT_EXPORT BranchMEG : public UWidget, public TreeElement {
public:
    /// The state of the call. Active and held calls are connected.
    enum IconType : int {
        CallActive = 0,
        CallClearing = 1,
        CallHeldByThisEnd = 2,
        CallHeldByFarEnd = 3,
        CallNoIcon = 4,
        LineBusy = 5,
        Alerting = 6,
        CallActiveHD = 7,
    };

    enum CallSecurityState : int {
        SecurityUnknown = 0,
        SecureCall = 1,
        InsecureCall = 2,
    };

    enum CallRecording : int {
        NotRecording = 0,
        Recording = 1,
    };

    BranchMEG(TreeItemMEG* row, IconType iconType);
    ~BranchMEG() override;

    int elementKind() const override { return BranchElement; }

    // Content

    IconType getFirstIconType() const { return mIconType; }

    /// What stands behind the icon: the pre-prefix, a blank and the row's text.
    UString text() const;

    /// The duration as m:ss, from one hour on as h:mm:ss. It is 0:00 before the first connection.
    UString getTimeDuration() const;
    bool hasContextMenuArrow() const;

    // Children

    /// The leaf, if the row has a second line, then the branches of the child rows; null outside.
    TreeElement* childElement(int index) const;

    /// True while the row is the current one of its list and shows its second line.
    bool childShown() const;

    // Marks

    void setCallSecurityState(CallSecurityState state);
    CallSecurityState getCallSecurityState() const { return mSecurityState; }
    void setCallRecordingState(CallRecording state);
    CallRecording getCallRecordingState() const { return mRecordingState; }

    /// Where the voice of a connected call is; mute shows before speaker, speaker before headset.
    void setHeadsetIcon(bool on);
    void setSpeakerIcon(bool on);
    void setMuteIcon(bool on);
    void setPhoneLockedIcon(bool on);
    void setRemoteMaintenanceIcon(bool on);

    void timerEvent(UTimerEvent* event) override;

private:
    friend class TreeItemMEG;

    void setIconType(IconType iconType);
    void setFlag(bool& flag, bool on);
    void startDuration();
    void stopDuration();
    void cancelDuration();
    std::uint64_t seconds() const;
    bool isConnected() const;
    bool isDurationShown() const { return mDuration != Duration::NotStarted && mDuration != Duration::Cancelled; }
    std::uint16_t firstIcon() const;
    std::vector<std::uint16_t> marks() const;

    enum class Duration {
        NotStarted,
        Running,
        Stopped,
        Cancelled,
    };

    TreeItemMEG& mRow;
    UString mPrePrefix;
    UTimer mTimer;
    std::uint64_t mStartedAt = 0;
    std::uint64_t mStoppedAt = 0;
    Duration mDuration = Duration::NotStarted;
    IconType mIconType;
    CallSecurityState mSecurityState = SecurityUnknown;
    CallRecording mRecordingState = NotRecording;
    bool mIsHeadset = false;
    bool mIsSpeaker = false;
    bool mIsMute = false;
    bool mIsPhoneLocked = false;
    bool mIsRemoteMaintenance = false;
};

/// The second line of a call's row.
class TOOLKIT_EXPORT Leaf : public UWidget, public TreeElement {
public:
    explicit Leaf(TreeItemMEG* row);

    int elementKind() const override { return LeafElement; }
    UString text() const { return mText; }

    /// In the current row of a list: the list's rectangle. Else that of the row.
    URect getRect() const override;

private:
    friend class TreeItemMEG;

    TreeItemMEG& mRow;
    UString mText;
};

/// The row of a call in the list of connected calls, or of a conference with its members as child rows.
///
/// The row takes both lines of the glass while it is current and has a second line or child rows. With child
/// rows, Up and Down go through the title and the children before they leave the row.
///
/// Ownership: the row owns its branch, its leaf and its child rows; a child row taken out is the caller's.
/// Errors: null, foreign children and numbers outside the row are ignored.
class TOOLKIT_EXPORT TreeItemMEG : public VantoListBoxItemMEG {
public:
    enum TreeItemTypes : int {
        CallType = 0,
        ConferenceType = 1, ///< A conference or a member of one; a member shows neither icon nor duration.
    };

    TreeItemMEG(BranchMEG::IconType iconType, const UString& text, bool hasContextMenuArrow, bool showsDuration);
    ~TreeItemMEG() override;

    int getItemType() const override { return TreeRow; }

    // Content

    virtual void setFirstIconType(BranchMEG::IconType iconType);

    /// A text by which the application knows the call; it is not shown.
    virtual void setBranchId(const UString& id) { mBranchId = id; }
    UString getBranchId() const { return mBranchId; }
    virtual void setSecondLineText(const UString& text);
    void clearSecondLineText();

    /// A text ahead of the first line.
    void setPrePrefixText(const UString& text);

    // Duration

    /// Stops the time, which stays readable.
    void stopDurationTimer();

    /// Stops the time for good and shows it no more.
    void cancelDurationTimer();

    // State

    /// A disabled row can be current, but OK raises nothing on it.
    void enabled(bool enabled);
    bool getEnabled() const { return isWidgetEnabled(); }
    bool isChoosable() const override;

    // Child rows; 0 is the title, children count from 1

    virtual void addChildItem(TreeItemMEG* child);
    virtual void removeChildItem(int number);
    virtual void setCurrentChild(int number);
    virtual void removeChildItem(TreeItemMEG* child);
    virtual int getCurrentChild() const { return mCurrentChild; }
    virtual void setTreeType(TreeItemTypes type);
    TreeItemTypes treeType() const { return mTreeType; }
    int childCount() const { return static_cast<int>(mChildren.size()); }

    /// True while the row is the current one of a list.
    bool isCurrentRow() const;

    void childLeft(UWidget* child) override;
    int lineCount() const override;
    void paintRow(UPainter& painter, int rowLine, int line, int column, int columns) const override;
    int highlightedLine() const override;
    bool moveInside(int step) override;
    bool hasMoreInside(int step) const override;
    bool enterFrom(int step) override;
    bool hasInnerRows() const override { return !mChildren.empty(); }

    /// The first line with its marks; never null, and owned by the row.
    BranchMEG* branch;

private:
    friend class BranchMEG;
    friend class Leaf;

    VantoListBoxMEG* listBox() const;
    bool hasSecondLine() const { return !mLeaf->text().isEmpty(); }
    bool isSecondLineShown() const { return hasSecondLine() && mCurrentChild == 0; }
    int shownChild() const { return mCurrentChild > 0 ? mCurrentChild : 1; }
    bool isMember() const;
    void paintBranch(UPainter& painter, int line, int column, int columns) const;

    Leaf* mLeaf;
    std::vector<TreeItemMEG*> mChildren;
    UString mBranchId;
    int mCurrentChild = 0;
    TreeItemTypes mTreeType = CallType;
    bool mShowsDuration;
};
