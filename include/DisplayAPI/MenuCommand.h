#pragma once

#include <DisplayAPI/Command.h>
#include <DisplayAPI/Icons.h>
#include <DisplayAPI/PhonebookItem.h>

#include <Types.h>

namespace DisplayAPI {

class Image;

/// A command with a row of its own in menus, popups and forms. Its type is always 7.
class DISPLAYAPI_EXPORT MenuCommand : public Command {
public:
    MenuCommand(const std::string& label, unsigned long id);
    MenuCommand(TranslationInfo* translation, unsigned long id);
    MenuCommand(const std::string& label, PhonebookItem::IconType iconType, unsigned long id);
    MenuCommand(TranslationInfo* translation, PhonebookItem::IconType iconType, unsigned long id);

    /// An image that is not null makes the icon type 6.
    MenuCommand(const std::string& label, Image* image, unsigned long id);
    MenuCommand(TranslationInfo* translation, Image* image, unsigned long id);
    MenuCommand(const std::string& label, std::string& imagePath, unsigned long id);
    ~MenuCommand() override;

    unsigned long getId() const { return mId; }
    PhonebookItem::IconType getIconType() const { return mIconType; }
    Image* getImage() const { return mImage; }
    std::string getImagePath() const { return mImagePath; }
    std::string getLabel() const { return Command::getLabel(); }
    void setLabel(const std::string& label) { Command::setLabel(label); }

    void setUnifiedIconType(Icons::IconType type) { mUnifiedIconType = type; }
    Icons::IconType getUnifiedIconType() const { return mUnifiedIconType; }
    void setTextEntryBoxVisible(bool visible) { mHasTextEntryBox = visible; }
    bool hasTextEntryBox() const { return mHasTextEntryBox; }
    void setReadOnly(bool readOnly) { mIsReadOnly = readOnly; }
    bool isReadOnly() const { return mIsReadOnly; }
    void setFeatureClearDrop(bool clearDrop) { mIsFeatureClearDrop = clearDrop; }
    bool isFeatureClearDrop() const { return mIsFeatureClearDrop; }
    void setPhoneBookActivated(bool activated) { mIsPhoneBookActivated = activated; }
    bool isPhoneBookActivated() const { return mIsPhoneBookActivated; }
    void setIconExpected(bool expected) { mIsIconExpected = expected; }
    bool isIconExpected() const { return mIsIconExpected; }
    void setAssignedFPK(PhysDefs::keyCode key) { mAssignedKey = key; }
    PhysDefs::keyCode getAssignedFpk() const { return mAssignedKey; }

    /// True when the commands and all fields of a menu command are equal.
    bool isSameAs(const MenuCommand& other) const;
    bool operator==(const MenuCommand& other) const { return isSameAs(other); }
    bool operator!=(const MenuCommand& other) const { return !isSameAs(other); }

    /// The fields on one line, with colons between them.
    std::string toString() const;

    void commonConstructorActions();
    static std::string btos(bool value);

private:
    PhonebookItem::IconType mIconType = PhonebookItem::NoIcon;
    Image* mImage = nullptr;
    unsigned long mId;
    std::string mImagePath;
    bool mReserved = false;
    Icons::IconType mUnifiedIconType{};
    bool mHasTextEntryBox = false;
    bool mIsReadOnly = false;
    bool mIsFeatureClearDrop = false;
    bool mIsPhoneBookActivated = false;
    bool mIsIconExpected = false;
    PhysDefs::keyCode mAssignedKey{};
};

}
