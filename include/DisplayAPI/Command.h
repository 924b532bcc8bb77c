#pragma once

#include <DisplayAPI/Export.h>

#include <cstdint>
#include <string>

class Semaphore;
class TranslationInfo;

namespace DisplayAPI {

template <typename T>
class LivingSet;

/// What an action of the user means to the application: a menu line, a soft key, or a notice of a screen.
///
/// Threads: may be made, read and destroyed on any thread. Destroying a command recalls its deliveries that
/// have not begun.
/// Ownership: a command belongs to whoever made it; screens keep its running number beside a plain pointer, so that
/// it may die at any time, and another one at its address is not taken for it. The command owns its translation.
class DISPLAYAPI_EXPORT Command {
public:
    /// What kind of action it is. The numbers are fixed.
    enum Type : int {
        Back = 1,
        Select = 6,
        Menu = 7, ///< Every MenuCommand, and some notices of forms and trees.
        Right = 9,
        Save = 11,
        TabBarActive = 16,
        TabBarInactive = 17,
        TabBack = 18,
        TabForward = 19,
        DisplayChanged = 20,
        Dismiss = 23,
    };

    Command(const std::string& label, Type type);

    /// Takes the translation over; null is an empty label.
    Command(TranslationInfo* translation, Type type);
    virtual ~Command();
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    Type getType() const { return mType; }
    TranslationInfo* getTranslationInfo() const { return mTranslation; }

    /// Writes the label under the lock of all commands, so that it may change while a screen reads the text. Screens
    /// that show the command read it again at a change of locale only.
    void setLabel(const std::string& label);

    /// The label, without the lock.
    std::string getLabel() const { return mLabel; }

    /// The text for the screen: the complete translation (without prefix and suffix on hardware variant 1), or
    /// the label. The lock of all commands is held while the translator runs.
    std::string getText() const;

    /// The translation alone, or the label; without the lock.
    std::string getBasicText() const;

    void setUseAlternativeDisplay(bool use) { mUseAlternativeDisplay = use; }
    bool useAlternativeDisplay() const { return mUseAlternativeDisplay; }

    /// True when labels, types, flags and translation pointers are equal.
    bool isSameAs(const Command& other) const;

    // All commands

    /// True while the command lives; false for null. The pointer is not followed.
    static bool exists(const Command* command);

    /// The running number that the command got when it entered; no later one at the same address has it. 0 for null
    /// and for a command that has died. The pointer is not followed, and no lock is taken.
    static std::uint64_t numberOf(const Command* command);
    static void addCommand(Command* command);
    static void removeCommand(Command* command);

    /// The lock of all commands; it may be taken again by its holder. Never destroyed.
    static Semaphore& commandListMutex();
    static void tidyup();

private:
    // Never destroyed. The lock is made at the first use: take it by commandListMutex(). The set of the living is
    // changed under it, and asked with it or without.
    static LivingSet<Command>& gAllCommands;
    static Semaphore* gCommandListMutex;

    std::string mLabel;
    Type mType;
    bool mUseAlternativeDisplay = false;
    TranslationInfo* mTranslation = nullptr;
};

}
