#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"

#include <DisplayAPI/DetailsWithCommands.h>
#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>

#include "DetailsWithCommandsPrivate.h"

#include <Log.h>
#include <UApplication.h>
#include <UEvent.h>
#include <VantoListBoxItemMEG.h>

#include <optional>

using namespace DisplayAPI;

namespace {

class DetailsWithCommandsTest : public PhoneTest {
protected:
    DetailsWithCommandsTest() { details.addCommandListener(&listener); }
    std::string text() { return details.getPrivateImpl()->serialise(); }

    RecordingListener listener;
    MenuCommand call{"Call", 1};
    MenuCommand edit{"Edit", 2};
    DetailsWithCommands details;
};

std::unique_ptr<DetailsWithCommands> makeDetails(Stage& stage)
{
    auto details = std::make_unique<DetailsWithCommands>();
    details->addCommandListener(&stage.listener);
    details->setCommands({&stage.yes, nullptr, &stage.no});
    return details;
}

}

INSTANTIATE_TEST_SUITE_P(DetailsWithCommands, EveryScreenTest,
    screenFamily<DetailsWithCommands>(makeDetails,
        {
            {"setCommands",
                [](auto& details, auto& stage) {
                    details.setCommands({&stage.maybe, &stage.last});
                }},
            {"setSystemStatusText1", [](auto& details, auto&) { details.setSystemStatusText1("Bob 4712"); }, false},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }, false},
            {"OK", [](auto&, auto& stage) { stage.press(UGlobal::KeyOk); }, false},
            {"Left", [](auto&, auto& stage) { stage.press(UGlobal::KeyLeft); }, false},
            {"setContactName", [](auto& details, auto&) { details.setContactName("Bob"); }, false},
            {"no commands", [](auto& details, auto&) { details.setCommands({}); }},
            {"dismiss", [](auto& details, auto&) { details.dismiss(); }},
        },
        [](DetailsWithCommands& details) { return std::to_string(details.getNumberOfCommands()); }));

TEST_F(DetailsWithCommandsTest, HeaderAndCommandsAreShownAndChosen)
{
    call.setPhoneBookActivated(true);
    edit.setReadOnly(true);
    MenuCommand more("More", static_cast<PhonebookItem::IconType>(39), 3);
    MenuCommand cut("Cut here", 4);
    cut.setLabel(std::string("Cut\0 here", 9));
    details.setCommands({&call, &edit, &more, &cut});
    details.setSystemStatusText1("Bob 4712");
    show(details);
    EXPECT_EQ(details.getNumberOfCommands(), 4);
    EXPECT_EQ(glassLine(0), "Bob 4712                   ");
    EXPECT_EQ(glassLine(1), "Call                     >v");
    EXPECT_EQ(screenText(), "");
    EXPECT_EQ(text(),
        lines({"object:", "name:DetailsWithCommands", "caption:Bob 4712", "subitem:", "name:VantoListBoxItem",
            "string0:Call ->", "endsubitem:", "end:"}));

    changes.takeNotices();
    press(UGlobal::KeyOk);
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1), "Edit                      |");
    press(UGlobal::KeyOk); // read-only
    press(UGlobal::KeyLeft);
    press(UGlobal::KeyRight);
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1), "More                     >|");
    press(UGlobal::KeyOk);
    press(UGlobal::KeyDown);
    EXPECT_EQ(glassLine(1), "Cut                       ^");
    EXPECT_EQ(listener.waitFor(2), (std::vector<RecordingListener::Delivery>{{&call, &details}, {&more, &details}}));
    EXPECT_EQ(changes.takeNotices(), 0);
    details.setSystemStatusText1("");
    pump();
    EXPECT_EQ(glassLine(0).substr(0, 3), "Mor") << "both lines have commands";
}

TEST_F(DetailsWithCommandsTest, CommandsThatHaveGoneAndForeignRowsTellNobody)
{
    std::optional<MenuCommand> dead(std::in_place, "dead", 5);
    MenuCommand* const address = &*dead;
    details.setCommands({&*dead, &call});
    show(details);
    dead.reset();
    press(UGlobal::KeyOk);
    dead.emplace("another", 6);
    press(UGlobal::KeyOk);
    VantoListBoxItemMEG foreign;
    auto& half = dynamic_cast<DetailsWithCommandsPrivate&>(*details.getPrivateImpl());
    for (UAgent* source : {static_cast<UAgent*>(&foreign), static_cast<UAgent*>(nullptr)}) {
        UEvent event(EventType::RowChosen, source);
        half.event(&event);
    }
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{&call});

    dead.reset();
    details.setCommands({address, &edit});
    EXPECT_EQ(details.getNumberOfCommands(), 1);
    details.clearCommandListeners();
    press(UGlobal::KeyOk);
    details.addCommandListener(&listener);
    details.setCommands({&call});
    press(UGlobal::KeyOk);
    EXPECT_EQ(listener.commands(2), (std::vector<Command*>{&call, &call}));
}

TEST_F(DetailsWithCommandsTest, ADismissalIsToldOfOnce)
{
    PopupConfirm popup(true);
    for (const bool isCovered : {false, true}) {
        SCOPED_TRACE(isCovered);
        show(details);
        if (isCovered)
            show(popup);
        Displayable* left = nullptr;
        changes.takeNotices();
        changes.onNotice = [&] { left = display->getCurrent(); };
        details.dismiss();
        changes.onNotice = nullptr;
        EXPECT_EQ(changes.takeNotices(), 1);
        EXPECT_EQ(left, isCovered ? &popup : nullptr);
        details.dismiss();
        EXPECT_EQ(changes.takeNotices(), 0) << "down already";
    }
}

TEST_F(DetailsWithCommandsTest, EachRequestIsTraced)
{
    static std::vector<std::string> messages;
    LogControl::setLevel("DisplayAPI", 5);
    LogControl::setSink([](const LogControl::Message& message) { messages.push_back(message.text); });
    elsewhere([&] { details.getNumberOfCommands(); });
    UApplication::instance()->postEvent(new GuiRequestEvent(&details, 8));
    pump();
    LogControl::reset();
    EXPECT_EQ(messages,
        (std::vector<std::string>{
            "DetailsWithCommands::processGuiRequest 3", "DetailsWithCommands::processGuiRequest 8"}));
}
