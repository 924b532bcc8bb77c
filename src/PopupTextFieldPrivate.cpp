#include "PopupTextFieldPrivate.h"

#include <DisplayAPI/ItemPrivateIfc.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupDialer.h>

#include "ScreenTextWriter.h"

#include <EventTypes.h>
#include <FormItemMEG.h>
#include <HardwareVersion.h>
#include <UEvent.h>
#include <UWindowManager.h>
#include <VantoTextEditMEG.h>

namespace DisplayAPI {

namespace {

constexpr auto NumberType = static_cast<TextField::FieldType>(5);

constexpr const char* LabelEnd = " = "; // of a password's label, which is shown without it
constexpr int Asterisks = 1;

// The first choice and behind it the name of the mode, in so many characters.
constexpr int RowWidth = 31;
constexpr int ModeWidth = 5;
constexpr int NarrowGlass = 7; // less on these telephones

}

PopupTextFieldPrivate::PopupTextFieldPrivate(Displayable* parent, TextField* edited)
    : ChoicePopupPrivate(new PopupDialerMEG(nullptr, false))
    , mParent(parent)
    , mField(edited)
{
    mWidget->setNumberInput(false);
    mWidget->setModePromptVisible(false);
    mWidget->setTextEditMode(Capitalised);
    if (field() && field()->getFieldType() == TextField::Password)
        hidePassword();
    followRow();
    showLabel();
}

// Text

std::string PopupTextFieldPrivate::getText()
{
    return mWidget ? mWidget->getEditText().toUTF8() : std::string();
}

void PopupTextFieldPrivate::clearText()
{
    if (mWidget)
        mWidget->setEditText(UString());
}

void PopupTextFieldPrivate::showLabel()
{
    std::string label = field() ? field()->getLabel() : std::string();
    if (field() && field()->getFieldType() == TextField::Password && label.ends_with(LabelEnd))
        label.resize(label.size() - std::string(LabelEnd).size());
    if (mWidget)
        mWidget->setText(UString(label));
}

void PopupTextFieldPrivate::setLabel(TranslationInfo* label)
{
    TranslationHolder own;
    const std::string text = own.showBare(label);
    if (field())
        field()->setLabel(own.release());
    if (mWidget)
        mWidget->setText(UString(text));
}

void PopupTextFieldPrivate::setFieldType(const TextField::FieldType& type)
{
    if (field())
        field()->setFieldType(type);
    mWasPassword = mWasPassword || type == TextField::Password;
    if (!mWidget)
        return;
    mWidget->setEditEchoMode(type == TextField::Password ? Asterisks : 0);
    if (type == NumberType)
        mWidget->setNumberInput(true);
}

void PopupTextFieldPrivate::followRow()
{
    ItemPrivateIfc* half = field() ? field()->getPrivateImpl() : nullptr;
    FormItemIfc* row = half ? half->getWidget() : nullptr;
    // No other row: the one that is watched goes with its form.
    if (!row || row == mRowWatch.row)
        return;
    mRowWatch.row = row;
    mRowWatch.watch(
        static_cast<FormItemMEG*>(row), [](LifeNode& node) { static_cast<RowWatch&>(node).popup.followRow(); });
    if (row->getFieldType() == FormItemIfc::PasswordField)
        hidePassword();
}

void PopupTextFieldPrivate::hidePassword()
{
    mWasPassword = true;
    if (mWidget)
        mWidget->setEditEchoMode(Asterisks);
}

void PopupTextFieldPrivate::setTextEditMode(editMode mode)
{
    mEditMode = mode;
    if (mWidget && mode >= LowerCase && mode <= NumericOnly)
        mWidget->setTextEditMode(mode);
}

void PopupTextFieldPrivate::localeChanged(std::string locale)
{
    for (std::size_t i = 0; list() && i < mCommands.size(); ++i) {
        auto* row = list()->item(static_cast<int>(i));
        const auto shown = readCommand(mCommands[i]);
        if (!row || !shown)
            continue;
        UString text(shown->text);
        if (i == 0) {
            mFirstCommandText = text;
            text = createStringForFirstCommandPlusInputMode();
        }
        row->setText(text);
    }
    if (!field())
        return;
    // The field may be of the application's own class, and take the popup with it.
    LifeNode life(this);
    field()->localeChanged(locale);
    if (life.isAlive())
        showLabel();
}

// Choices

void PopupTextFieldPrivate::addCommand(MenuCommand* command)
{
    const std::optional<CommandText> shown = readCommand(command);
    if (!shown || !list())
        return;
    auto* row = new CommandRow(command, *shown);
    list()->addItem(row);
    mCommands.push_back(shown->command);
    if (list()->item(0) == row) {
        mFirstCommandText = UString(shown->text);
        row->setVisible(true);
        setInputModeOnFirstCommand();
    }
    generateDisplayChangedEvent();
}

void PopupTextFieldPrivate::clearCommands()
{
    if (list())
        list()->clear();
    mFirstCommandText = UString();
    mCommands.clear();
    generateDisplayChangedEvent();
}

void PopupTextFieldPrivate::setInputModeOnFirstCommand()
{
    if (commonTranslator && list() && list()->item(0))
        list()->item(0)->setText(createStringForFirstCommandPlusInputMode());
}

UString PopupTextFieldPrivate::createStringForFirstCommandPlusInputMode()
{
    std::string text = mFirstCommandText.toUTF8();
    const int pad = RowWidth - (static_cast<int>(mFirstCommandText.length()) + ModeWidth)
        - (HardwareVersion::is_RX40_any() ? NarrowGlass : 0);
    if (pad > 0)
        text.append(static_cast<std::size_t>(pad), ' ');
    mWidget->setModePromptVisible(true);
    return UString(text) + mWidget->getInputModeInText();
}

// Listeners

void PopupTextFieldPrivate::removeCommandListener(CommandListener* listener)
{
    if (!listener)
        return;
    mCommandListeners.remove(listener);
    if (Widget::isGuiThread())
        generateDisplayChangedEvent();
}

// Life on the screen

void PopupTextFieldPrivate::show()
{
    if (!mWidget)
        return;
    if (list())
        list()->setCurrentItem(mDefaultIndex);
    mWidget->popupAsNotification();
    setInputModeOnFirstCommand();
}

void PopupTextFieldPrivate::dismiss()
{
    // What the popup raises on its way down may delete this object.
    LifeNode life(this);
    if (mWidget)
        mWidget->dismiss();
    if (!life.isAlive())
        return;
    clearText();
    widgetDismissed(this);
}

void PopupTextFieldPrivate::setTimeout(int milliseconds)
{
    if (mWidget)
        mWidget->setTimeout(milliseconds);
}

void PopupTextFieldPrivate::event(UEvent* event)
{
    switch (event->type) {
    case EventType::PopupUp: popupCameUp(); break;
    case EventType::PopupDown: popupWentDown(); break;
    case EventType::EmptyLineLeft: postCommand(PopupDialer::BackCommand(), mParent); break;
    case EventType::SearchTextChanged:
    case EventType::EditTextChanged: textEntered(); break;
    case EventType::RowMoved: generateDisplayChangedEvent(); break;
    case EventType::RowChosen:
        if (auto* row = dynamic_cast<VantoListBoxItemMEG*>(event->source()))
            tellChoice(dynamic_cast<CommandRow*>(row), mParent);
        break;
    case EventType::LocaleChanged: localeChanged(""); break;
    default: break;
    }
}

bool PopupTextFieldPrivate::keyEvent(UKeyEvent* key)
{
    if (!list() || !list()->isVisible() || key->key() != UGlobal::KeyHash)
        return false;
    mWidget->genNextInputMode();
    setInputModeOnFirstCommand();
    if (commonTranslator) {
        if (VantoListBoxItemMEG* first = list()->item(0))
            first->refresh();
        generateDisplayChangedEvent();
    }
    return false;
}

void PopupTextFieldPrivate::popupCameUp()
{
    auto* application = VantoUApplication::getCurrentApplication();
    if (!application)
        return;
    application->windowManager()->requestFocus(mWidget);
    application->requestFullScreen();
}

void PopupTextFieldPrivate::popupWentDown()
{
    // The screen below comes back first, which may delete this object.
    LifeNode life(this);
    widgetDismissed(this);
    if (life.isAlive())
        postCommand(PopupConfirm::HIDDEN_COMMAND(), mParent);
    if (auto* application = VantoUApplication::getCurrentApplication())
        application->windowManager()->releaseFocus();
}

void PopupTextFieldPrivate::textEntered()
{
    if (TextField* changed = field())
        mItemStateListeners.notify(&ItemStateListener::postItemStateChange, static_cast<Item*>(changed));
    generateDisplayChangedEvent();
}

// Screen text

std::string PopupTextFieldPrivate::serialise()
{
    if (!list())
        return {};
    UString value = mWidget->isEditVisible() ? mWidget->getEditText() : mWidget->getText();
    if (mWidget->isEditVisible() && mWasPassword)
        value = PasswordFormItemMEG::getAsterisks(value);
    ScreenTextWriter writer;
    writer.object("PopupTextField");
    writer.field("string0", ScreenTextWriter::flattened(value.toUTF8()));
    const VantoTextEditMEG* edit = mWidget->getEditField();
    const VantoListBoxItemMEG* row = list()->currentItem();
    if (edit && edit->getKeyPadShown())
        writer.field("string1", edit->getActualKeySet().toUTF8());
    else if (row && (row != list()->item(0) || commonTranslator))
        writer.field("string1", row->getText().toUTF8());
    writer.endObject();
    return writer.take();
}

}
