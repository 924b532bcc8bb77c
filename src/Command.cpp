#include <DisplayAPI/Command.h>

#include "CommandExecutor.h"
#include "CurrentApplication.h"
#include "LivingSet.h"

#include <Semaphore.h>
#include <TranslationInfo.h>

namespace DisplayAPI {

namespace {

// Neither the set nor its lock is ever destroyed: well-known commands die behind main().
LivingSet<Command>& allCommands()
{
    static LivingSet<Command>& instance = *new LivingSet<Command>;
    return instance;
}

}

LivingSet<Command>& Command::gAllCommands = allCommands();
Semaphore* Command::gCommandListMutex = nullptr;

Command::Command(const std::string& label, Type type)
    : mLabel(label)
    , mType(type)
{
    addCommand(this);
}

Command::Command(TranslationInfo* translation, Type type)
    : mType(type)
    , mTranslation(translation)
{
    addCommand(this);
}

Command::~Command()
{
    // First out of the living, so that nothing new comes behind the recall.
    removeCommand(this);
    CommandExecutor::retrieveCommand(nullptr, this, nullptr);
    CriticalSection section(commandListMutex());
    delete mTranslation;
    mTranslation = nullptr;
}

void Command::setLabel(const std::string& label)
{
    CriticalSection section(commandListMutex());
    mLabel = label;
}

std::string Command::getText() const
{
    CriticalSection section(commandListMutex());
    if (!mTranslation)
        return mLabel;
    return currentHardwareVariant() == 1 ? mTranslation->getString() : mTranslation->getCompleteString();
}

std::string Command::getBasicText() const
{
    return mTranslation ? mTranslation->getString() : mLabel;
}

bool Command::isSameAs(const Command& other) const
{
    return mLabel == other.mLabel && mType == other.mType && mUseAlternativeDisplay == other.mUseAlternativeDisplay
        && mTranslation == other.mTranslation;
}

bool Command::exists(const Command* command)
{
    CriticalSection section(commandListMutex());
    return allCommands().contains(command);
}

std::uint64_t Command::numberOf(const Command* command)
{
    return allCommands().numberOf(command);
}

void Command::addCommand(Command* command)
{
    CriticalSection section(commandListMutex());
    if (command)
        allCommands().add(command);
}

void Command::removeCommand(Command* command)
{
    CriticalSection section(commandListMutex());
    allCommands().remove(command);
}

Semaphore& Command::commandListMutex()
{
    static Semaphore& mutex = *(gCommandListMutex = new Semaphore(Semaphore::AVAILABLE, 1, true));
    return mutex;
}

void Command::tidyup() { }

}
