#include "CommandExecutor.h"
#include "CommandText.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Displayable.h>
#include <DisplayAPI/DisplayablePrivate.h>
#include <DisplayAPI/Item.h>
#include <DisplayAPI/ItemStateListener.h>
#include <DisplayAPI/ListenerList.h>
#include <DisplayAPI/MenuCommand.h>

#include <Semaphore.h>
#include <UApplication.h>
#include <UScreenWE1.h>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>

using namespace DisplayAPI;

namespace {

class Screen : public Displayable {
public:
    DisplayablePrivateIfc* getPrivateImpl() override { return nullptr; }
};

class Field : public Item {
public:
    void processGuiRequest(GuiRequestEvent&) override { }
    ItemPrivateIfc* getPrivateImpl() override { return nullptr; }
    void localeChanged(std::string) override { }
};

/// What a listener was told, as words in one line.
struct Story {
    std::string text;
    void add(const std::string& word) { text += (text.empty() ? "" : " ") + word; }
};

/// Tells what it hears to the story, under its name.
struct Teller : RecordingListener {
    Teller(const std::string& name, Story& story)
    {
        reaction = [name, &story](Command* command) { story.add(name + ":" + command->getText()); };
        changeReaction = [name, &story](Item*) { story.add(name + ":changed"); };
    }
};

/// Queues without calling a worker; deliver() is the worker's work on this thread.
class QueueTest : public testing::Test {
protected:
    ~QueueTest() override
    {
        CommandExecutor::retrieveCommand(nullptr, nullptr, nullptr);
        CommandExecutor::retrieveCommand(nullptr, nullptr);
    }
    static void post(CommandListener& listener, Command& command, Displayable* screen = nullptr)
    {
        CommandExecutor::postCommand(&listener, &command, screen, false);
    }
    static void post(ItemStateListener& listener, Item& item) { CommandExecutor::postCommand(&listener, &item, false); }
    std::string deliver()
    {
        story.text.clear();
        CommandExecutor().run();
        return story.text;
    }

    Story story;
    Teller anna{"anna", story};
    Teller otto{"otto", story};
    Command yes{"yes", Command::Select};
    Command no{"no", Command::Back};
    Screen screen;
    Field field;
    Field other;
};

/// Whether another thread could take the lock of all commands now.
bool isMutexFree()
{
    bool isFree = false;
    std::thread([&isFree] {
        isFree = Command::commandListMutex().take(0);
        if (isFree)
            Command::commandListMutex().give();
    }).join();
    return isFree;
}

}

TEST(CommandTest, EqualCommandsAreDifferentCommands)
{
    auto first = std::make_unique<Command>("OK", Command::Select);
    Command second("OK", Command::Select);
    EXPECT_TRUE(first->isSameAs(second));
    EXPECT_TRUE(Command::exists(first.get()) && Command::exists(&second));

    const Command* gone = first.get();
    first.reset();
    EXPECT_FALSE(Command::exists(gone));
    EXPECT_TRUE(Command::exists(&second));
    EXPECT_FALSE(Command::exists(nullptr));

    second.setUseAlternativeDisplay(true);
    EXPECT_FALSE(second.isSameAs(Command("OK", Command::Select)));
    EXPECT_FALSE(Command("OK", Command::Back).isSameAs(Command("OK", Command::Select)));
}

TEST(CommandTest, TheTextIsTheCompleteTranslationExceptOnHardwareVariantOne)
{
    TestTranslator translator;
    translator.prefix = "en:";
    Command plain("", Command::Select);
    EXPECT_EQ(plain.getText(), "");
    plain.setLabel("Call");
    EXPECT_EQ(plain.getText(), "Call");

    Command translated(new TranslationInfo("[", "call", "]", &translator), Command::Select);
    translated.setLabel("never read");
    EXPECT_EQ(translated.getText(), "[en:call]");
    EXPECT_EQ(translated.getBasicText(), "en:call");

    UScreenWE1 glass;
    auto* application = new VantoUApplication(UString(), &glass, {}, {}, {}, {});
    EXPECT_EQ(translated.getText(), "[en:call]");
    application->setHardwareVariant(static_cast<VantoUApplication::HardwareVariant>(1));
    EXPECT_EQ(translated.getText(), "en:call");
    VantoUApplication::endCurrent();
}

TEST(CommandTest, TheLockIsHeldWhileTheTranslatorRunsAndGivenBackWhenItThrows)
{
    TestTranslator translator;
    Command command(new TranslationInfo("key", &translator), Command::Select);
    bool wasFree = true;
    translator.whenAsked = [&](const std::string&) {
        wasFree = isMutexFree();
        // The same thread may ask on.
        return Command::exists(&command) ? "there" : "gone";
    };
    EXPECT_EQ(readCommand(&command)->text, "there");
    EXPECT_FALSE(wasFree);
    EXPECT_TRUE(isMutexFree());

    translator.whenAsked = [](const std::string&) -> std::string { throw std::runtime_error("no text"); };
    EXPECT_THROW(readCommand(&command), std::runtime_error);
    EXPECT_TRUE(isMutexFree());
    EXPECT_FALSE(readCommand(nullptr));
}

TEST(CommandTest, ALabelIsNotWrittenWhileAnotherThreadReadsTheText)
{
    Command command("old", Command::Select);
    std::atomic<bool> isWritten = false;
    Command::commandListMutex().take(-1);
    std::thread writer([&] {
        command.setLabel("new");
        isWritten = true;
    });
    // Nothing tells that the writer has come to the lock, so it gets time to pass it by.
    for (int i = 0; i < 1000 && !isWritten; ++i)
        std::this_thread::yield();
    EXPECT_FALSE(isWritten);
    EXPECT_EQ(command.getText(), "old");
    Command::commandListMutex().give();
    writer.join();
    EXPECT_EQ(command.getText(), "new");
}

TEST(CommandTest, AnotherCommandAtTheSameAddressIsNotTakenForTheFirst)
{
    alignas(MenuCommand) std::array<std::byte, sizeof(MenuCommand)> place;
    auto* cancel = new (place.data()) MenuCommand("Cancel", 1);
    const Living<Command> remembered(cancel);
    EXPECT_EQ(remembered.get(), cancel);
    EXPECT_EQ(readCommand(remembered)->text, "Cancel");
    EXPECT_EQ(readCommand(remembered)->type, Command::Menu);
    cancel->~MenuCommand();
    EXPECT_EQ(remembered.get(), nullptr);

    auto* deleteAll = new (place.data()) MenuCommand("Delete all", 2);
    EXPECT_TRUE(remembered.isAt(deleteAll));
    EXPECT_EQ(remembered.get(), nullptr);
    EXPECT_FALSE(readCommand(remembered));
    EXPECT_EQ(readCommand(deleteAll)->text, "Delete all");
    deleteAll->~MenuCommand();
}

TEST(MenuCommandTest, TheFieldsOnOneLine)
{
    EXPECT_EQ(MenuCommand("", 5).toString(), "0:0:5::F:0:F:F:F:F:F:0:");

    std::string path = "/icons/phone";
    MenuCommand all("Dial: now", path, 4'000'000'000UL);
    all.setUnifiedIconType(static_cast<Icons::IconType>(77));
    all.setTextEntryBoxVisible(true);
    all.setFeatureClearDrop(true);
    all.setIconExpected(true);
    all.setAssignedFPK(static_cast<PhysDefs::keyCode>(12));
    EXPECT_EQ(all.toString(), "0:0:4000000000:/icons/phone:F:77:T:F:T:F:T:12:Dial: now");

    int anything = 0;
    auto* image = reinterpret_cast<Image*>(&anything);
    EXPECT_EQ(MenuCommand("", image, 1).getIconType(), PhonebookItem::ImageIcon);
    EXPECT_EQ(MenuCommand(static_cast<TranslationInfo*>(nullptr), image, 1).getIconType(), PhonebookItem::ImageIcon);
    EXPECT_EQ(MenuCommand("", static_cast<Image*>(nullptr), 1).getIconType(), PhonebookItem::NoIcon);
    // A literal null is no path: it is the image that there isn't.
    EXPECT_EQ(MenuCommand("label", nullptr, 1).toString(), MenuCommand("label", 1).toString());
    EXPECT_EQ(MenuCommand(nullptr, nullptr, 1).toString(), MenuCommand("", 1).toString());
    static_assert(!std::is_constructible_v<MenuCommand, const char*, const char*, unsigned long>);
    EXPECT_EQ(MenuCommand("", PhonebookItem::Mobile, 1).toString(), "4:0:1::F:0:F:F:F:F:F:0:");
}

TEST_F(QueueTest, CommandsComeInTheOrderOfPostingAndChangesOnce)
{
    post(anna, yes);
    post(anna, field);
    post(anna, yes);
    post(otto, field);
    post(anna, field);
    post(otto, no);
    EXPECT_EQ(deliver(), "anna:yes anna:changed anna:yes otto:changed otto:no");
    EXPECT_EQ(deliver(), "");

    // A change that was delivered is no longer one that waits.
    post(anna, field);
    EXPECT_EQ(deliver(), "anna:changed");
}

TEST_F(QueueTest, ARecallTakesWhatMatchesAllThatIsNamed)
{
    struct Case {
        const char* name;
        CommandListener* listener;
        Command* command;
        Displayable* displayable;
        const char* left;
    };
    const Case cases[] = {
        {"all commands", nullptr, nullptr, nullptr, "anna:changed otto:changed"},
        {"listener", &anna, nullptr, nullptr, "anna:changed otto:changed otto:no"},
        {"command", nullptr, &yes, nullptr, "anna:no anna:changed otto:changed otto:no"},
        {"screen", nullptr, nullptr, &screen, "anna:no anna:changed anna:yes otto:changed otto:no"},
        {"listener and command", &anna, &no, nullptr, "anna:yes anna:changed anna:yes otto:changed otto:no"},
        {"nothing of all three", &otto, &no, &screen, "anna:yes anna:no anna:changed anna:yes otto:changed otto:no"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        post(anna, yes, &screen);
        post(anna, no);
        post(anna, field);
        post(anna, yes);
        post(otto, field);
        post(otto, no);
        CommandExecutor::retrieveCommand(each.listener, each.command, each.displayable);
        EXPECT_EQ(deliver(), each.left);
    }
}

TEST_F(QueueTest, ARecalledChangeMayBePostedAgain)
{
    post(anna, field);
    post(anna, other);
    post(otto, field);
    post(anna, yes);
    anna.retrievePendingItemStateChange(&field);
    post(anna, field);
    EXPECT_EQ(deliver(), "anna:changed otto:changed anna:yes anna:changed");

    post(anna, field);
    post(otto, other);
    CommandExecutor::retrieveCommand(nullptr, nullptr);
    EXPECT_EQ(deliver(), "");
}

TEST_F(QueueTest, WhateverDiesTakesItsDeliveriesAlong)
{
    auto shortListener = std::make_unique<Teller>("short", story);
    auto shortCommand = std::make_unique<MenuCommand>("short", 1);
    auto shortScreen = std::make_unique<Screen>();
    auto shortField = std::make_unique<Field>();
    post(*shortListener, yes);
    post(*shortListener, field);
    post(anna, *shortCommand);
    post(anna, no);
    post(anna, yes, shortScreen.get());
    post(anna, *shortField);
    post(anna, field);

    shortListener.reset();
    shortCommand.reset();
    shortScreen.reset();
    shortField.reset();
    EXPECT_EQ(deliver(), "anna:no anna:changed");
}

TEST_F(QueueTest, NobodyPostsToNullOrToTheDead)
{
    auto shortListener = std::make_unique<Teller>("short", story);
    CommandListener* commands = shortListener.get();
    ItemStateListener* changes = shortListener.get();
    ListenerList<CommandListener> listeners;
    listeners.add(commands);
    listeners.add(&anna);
    shortListener.reset();

    CommandExecutor::postCommand(commands, &yes, nullptr, true);
    CommandExecutor::postCommand(changes, &field, true);
    CommandExecutor::postCommand(static_cast<CommandListener*>(nullptr), &yes, nullptr, true);
    CommandExecutor::postCommand(static_cast<ItemStateListener*>(nullptr), &field, true);
    listeners.forEach([this](CommandListener* listener) { post(*listener, yes); });
    auto shortCommand = std::make_unique<Command>("short", Command::Select);
    Command* gone = shortCommand.get();
    shortCommand.reset();
    post(anna, *gone); // it died behind the question whether it lives
    EXPECT_EQ(deliver(), "anna:yes");
}

TEST_F(QueueTest, AnotherListenerAtTheSameAddressIsANewOne)
{
    alignas(Teller) std::array<std::byte, sizeof(Teller)> place;
    ListenerList<CommandListener> listeners;
    auto* first = new (place.data()) Teller("first", story);
    listeners.addOnce(first);
    listeners.addOnce(&anna);
    first->~Teller();

    auto* second = new (place.data()) Teller("second", story);
    listeners.forEach([this](CommandListener* listener) { post(*listener, yes); });
    EXPECT_EQ(deliver(), "anna:yes");
    EXPECT_EQ(listeners.size(), 1U);

    listeners.addOnce(second);
    listeners.addOnce(second);
    listeners.forEach([this](CommandListener* listener) { post(*listener, yes); });
    EXPECT_EQ(deliver(), "anna:yes second:yes");
    listeners.remove(second);
    EXPECT_EQ(listeners.size(), 1U);
    second->~Teller();
    listeners.addOnce(second);
    EXPECT_EQ(listeners.size(), 1U);
}

TEST_F(QueueTest, ACommandThatIsReplacedInAPostIsNotToldToTheNextListener)
{
    struct Half : DisplayablePrivate {
        UWidget* getWidget() override { return nullptr; }
        void releaseOwnership() override { }
        void gainOwnership() override { }
        void show() override { }
        void lostFocus() override { }
    };
    alignas(Command) std::array<std::byte, sizeof(Command)> place;
    auto* cancel = new (place.data()) Command("cancel", Command::Select);
    RecordingListener replacing;
    replacing.postReaction = [](Command* command) {
        command->~Command();
        new (command) Command("delete all", Command::Select);
    };
    Half half;
    half.addCommandListener(&replacing);
    half.addCommandListener(&anna);
    half.postCommand(cancel, nullptr);
    EXPECT_EQ(deliver(), "");
    cancel->~Command();
}

TEST_F(QueueTest, ACopyOfAListenerLives)
{
    struct Copied : CommandListener, ItemStateListener {
        void commandAction(Command*, Displayable*) override { }
        void itemStateChanged(Item*) override { }
    };
    const Copied original;
    const Copied copy(original);
    EXPECT_TRUE(CommandListener::exists(&copy) && ItemStateListener::exists(&copy));
    EXPECT_TRUE(CommandListener::exists(&original) && ItemStateListener::exists(&original));
}

TEST_F(QueueTest, AListenerMayPostAndRecallFromItsDelivery)
{
    RecordingListener insistent;
    insistent.reaction = [&](Command* command) {
        insistent.retrievePendingCommandAction(&no, nullptr);
        if (command == &yes)
            post(anna, no);
    };
    post(insistent, yes);
    post(insistent, no);
    post(otto, yes);
    EXPECT_EQ(deliver(), "otto:yes anna:no");
}
