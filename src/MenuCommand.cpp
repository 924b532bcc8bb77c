#include <DisplayAPI/MenuCommand.h>

#include <sstream>

namespace DisplayAPI {

MenuCommand::MenuCommand(const std::string& label, unsigned long id)
    : Command(label, Menu)
    , mId(id)
{
    commonConstructorActions();
}

MenuCommand::MenuCommand(TranslationInfo* translation, unsigned long id)
    : Command(translation, Menu)
    , mId(id)
{
    commonConstructorActions();
}

MenuCommand::MenuCommand(const std::string& label, PhonebookItem::IconType iconType, unsigned long id)
    : Command(label, Menu)
    , mIconType(iconType)
    , mId(id)
{
    commonConstructorActions();
}

MenuCommand::MenuCommand(TranslationInfo* translation, PhonebookItem::IconType iconType, unsigned long id)
    : Command(translation, Menu)
    , mIconType(iconType)
    , mId(id)
{
    commonConstructorActions();
}

MenuCommand::MenuCommand(const std::string& label, Image* image, unsigned long id)
    : Command(label, Menu)
    , mIconType(image ? PhonebookItem::ImageIcon : PhonebookItem::NoIcon)
    , mImage(image)
    , mId(id)
{
    commonConstructorActions();
}

MenuCommand::MenuCommand(TranslationInfo* translation, Image* image, unsigned long id)
    : Command(translation, Menu)
    , mIconType(image ? PhonebookItem::ImageIcon : PhonebookItem::NoIcon)
    , mImage(image)
    , mId(id)
{
    commonConstructorActions();
}

MenuCommand::MenuCommand(const std::string& label, std::string& imagePath, unsigned long id)
    : Command(label, Menu)
    , mId(id)
    , mImagePath(imagePath)
{
    commonConstructorActions();
}

// Out of the living before its fields go, which are read under the lock of all commands.
MenuCommand::~MenuCommand()
{
    removeCommand(this);
}

bool MenuCommand::isSameAs(const MenuCommand& other) const
{
    return Command::isSameAs(other) && mIconType == other.mIconType && mImage == other.mImage && mId == other.mId
        && mImagePath == other.mImagePath && mReserved == other.mReserved && mUnifiedIconType == other.mUnifiedIconType
        && mHasTextEntryBox == other.mHasTextEntryBox && mIsReadOnly == other.mIsReadOnly
        && mIsFeatureClearDrop == other.mIsFeatureClearDrop && mIsPhoneBookActivated == other.mIsPhoneBookActivated
        && mIsIconExpected == other.mIsIconExpected && mAssignedKey == other.mAssignedKey;
}

std::string MenuCommand::toString() const
{
    std::ostringstream line;
    line.imbue(std::locale::classic());
    line << static_cast<int>(mIconType) << ':' << static_cast<const void*>(mImage) << ':' << mId << ':' << mImagePath
         << ':' << btos(mReserved) << ':' << static_cast<int>(mUnifiedIconType) << ':' << btos(mHasTextEntryBox) << ':'
         << btos(mIsReadOnly) << ':' << btos(mIsFeatureClearDrop) << ':' << btos(mIsPhoneBookActivated) << ':'
         << btos(mIsIconExpected) << ':' << static_cast<int>(mAssignedKey) << ':' << getText();
    return line.str();
}

void MenuCommand::commonConstructorActions() { }

std::string MenuCommand::btos(bool value)
{
    return value ? "T" : "F";
}

}
