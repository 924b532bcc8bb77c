#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/PopupCallPrivateIfc.h>

#include "PopupPrivate.h"

#include <PopupCallMEG.h>

#include <utility>

class UEvent;

namespace DisplayAPI {

/// The popup of a call on the GUI thread: a PopupCallMEG with its parties, its state and a row for each choice.
///
/// Without an application there is no widget, and a toolkit tree that holds it may delete it; then everything here
/// changes nothing that can be seen.
class PopupCallPrivate final : public ChoicePopupPrivate<PopupCallPrivateIfc, PopupCallMEG> {
public:
    explicit PopupCallPrivate(PopupCall* owner);

    Displayable* getParent() const { return mOwner; }
    PopupCallMEG* getPopupCallMEG() const { return mWidget; }

    // Parties

    void setPopupCallDetails(CallPartyIdentifier* party, CallPartyIdentifier* second, ForwardedCallType type,
        const std::string& auxText, TranslationInfo* auxInfo) override;

    // Texts

    void setLine1PrefixText(const std::string& text) override { setLine(mLine1Prefix, text); }
    void setLine1PrefixText(TranslationInfo* text) override { setLine(mLine1Prefix, text); }
    void setText(const std::string& text) override { setLine(mText, text); }
    void setText(TranslationInfo* text) override { setLine(mText, text); }
    void setLine2PrefixText(const std::string& text) override;
    void setLine2PrefixText(TranslationInfo* text) override;
    void setLine2Text(const std::string& text) override;
    void setLine2Text(TranslationInfo* text) override;
    void setAuxText(const std::string& text) override { setLine(mAux, text); }
    void setAuxText(TranslationInfo* text) { setLine(mAux, text); }
    void localeChanged(std::string locale);

    // State

    void setState(PopupCall::CallState state, PopupCall::CallPriority priority) override;
    void setImage(Image* image) override;

    // Choices

    void addCommand(MenuCommand* command) override;
    void setDefaultCommand(MenuCommand* command) override;
    void clearCommands() override;
    int getSelectedIndex() override { return currentRow(); }
    bool selectionHasChanged() override { return std::exchange(mSelectionChanged, false); }
    const std::vector<Living<Command>>& getCommands() const { return mCommands; }

    // Listeners

    void addCommandListener(CommandListener* listener) override { mCommandListeners.addOnce(listener); }
    void removeCommandListener(CommandListener* listener) override { mCommandListeners.remove(listener); }
    int commandListenerCount() const { return static_cast<int>(mCommandListeners.size()); }

    /// Null outside the list.
    CommandListener* listenerAt(int index) const;

    // Life on the screen

    void show() override;
    void event(UEvent* event) override;

    // Screen text

    using DisplayablePrivate::serialise;
    std::string serialise() override;

    /// Empty unless a rectangle holds the whole popup.
    std::string serialise(const std::vector<URect>& rects);

private:
    void writeLine2(const std::string& text);
    bool ignoreLine2Text() const;
    void showForwarding(ForwardedCallType type);
    void showParties(const CallPartyIdentifier& party, const CallPartyIdentifier* second);
    void clearLine2();
    void addLine2Row();
    void popupWentDown();
    void line2GaveWay();
    void selectionMoved();
    bool isChoiceWritten() const;
    std::string stateWord();
    std::string caption(bool hasChoice) const;
    std::string line2() const;

    bool mSelectionChanged = false;
    PopupCall* mOwner;
    Command mBackCommand{"", Command::Back};
    Image* mImage = nullptr;
    PopupCall::CallState mState = PopupCall::CONNECTING;
    std::string mIconWord1;
    std::string mIconWord2;
    Line mAux{&PopupCallMEG::setLine1PrefixText};
    Line mLine1Prefix{&PopupCallMEG::setLine1PrePrefixText};
    Line mText{&PopupCallMEG::setText};
    Line mLine2Prefix{&PopupCallMEG::setLine2PrefixText};
    Line mLine2{&PopupCallMEG::setLine2Text};
    std::string mForwardedWord;
    std::string mForwardedSecondWord;
    bool mLine2Pending = false;
};

}
