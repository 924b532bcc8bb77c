#include "EveryScreen.h"
#include "PhoneTest.h"
#include "RecordingListener.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/List.h>
#include <DisplayAPI/MenuCommand.h>
#include <DisplayAPI/PopupConfirm.h>
#include <DisplayAPI/PopupNotification.h>

#include "PopupNotificationPrivate.h"

#include <UApplication.h>

using namespace DisplayAPI;

namespace {

class PopupNotificationTest : public PhoneTest {
protected:
    static std::string textInRects(PopupNotification& popup)
    {
        auto& half = dynamic_cast<PopupNotificationPrivate&>(*popup.getPrivateImpl());
        return half.serialise(std::vector<URect>{URect(0, 0, 161, 30)});
    }

    RecordingListener listener;
};

std::unique_ptr<PopupNotification> makePopup(Stage& stage)
{
    auto popup = std::make_unique<PopupNotification>();
    popup->addCommandListener(&stage.listener);
    popup->setTimeout(3000);
    return popup;
}

}

INSTANTIATE_TEST_SUITE_P(PopupNotification, EveryScreenTest,
    screenFamily<PopupNotification>(makePopup,
        {
            {"setLine1PrefixText", [](auto& popup, auto&) { popup.setLine1PrefixText("Update"); }},
            {"setText", [](auto& popup, auto&) { popup.setText("failed"); }},
            {"setLine2PrefixText",
                [](auto& popup, auto& stage) { popup.setLine2PrefixText(stage.translation("why")); }},
            {"setLine2Text", [](auto& popup, auto&) { popup.setLine2Text("no network"); }},
            {"its translation", [](auto& popup, auto& stage) { popup.setLine2Text(stage.translation("no line")); }},
            {"setLine3Text", [](auto& popup, auto& stage) { popup.setLine3Text(stage.translation("call me")); }},
            {"setLine2Icon", [](auto& popup, auto&) { popup.setLine2Icon(PopupNotification::ARROW); }},
            {"setType", [](auto& popup, auto&) { popup.setType(PopupNotification::ERROR); }, false},
            {"setPartyDetails",
                [](auto& popup, auto&) {
                    popup.setPartyDetails({"Bob", "4712"});
                }},
            {"setForwardNotification",
                [](auto& popup, auto&) {
                    CallPartyIdentifier caller("Bob", "4712");
                    CallPartyIdentifier called("Carol", "4713");
                    popup.setForwardNotification(caller, called, FORWARDED_ON_BUSY);
                }},
            {"setDismissible", [](auto& popup, auto&) { popup.setDismissible(true); }, false},
            {"time-out", [](auto&, auto& stage) { stage.advance(3000); }},
            {"dismiss", [](auto& popup, auto&) { popup.dismiss(); }},
        }));

TEST_F(PopupNotificationTest, EachTypeHasItsIconAndItsWord)
{
    PopupNotification popup;
    popup.setText("text");
    show(popup);
    const struct {
        int type;
        std::uint16_t icon;
        const char* word;
        const char* lineInRects;
    } cases[] = {{0, 0, "None", "icon0:None\n"}, {1, 22, "Success", "icon0:Success\n"},
        {2, 16, "Error", "icon0:Error\n"}, {3, 21, "Info", "icon0:Info\n"}, {4, 78, "BLF", "icon0:string0"},
        {5, 8, "Forwarded", "icon0:Forwarded\n"}, {6, 20, "Warning", "icon0:Warning\n"},
        {7, 21, "UserAction", "icon0:UserAction\n"}, {8, 21, "USB", "icon0:USB\n"},
        {9, 81, "Mobile User Saving", "icon0:string0"}, {10, 82, "Mobile User Failed", "icon0:string0"}};
    for (const auto& row : cases) {
        popup.setType(static_cast<PopupNotification::InfoType>(row.type));
        EXPECT_EQ(screenField("icon0"), row.word) << "type " << row.type;
        EXPECT_NE(textInRects(popup).find(row.lineInRects), std::string::npos) << "type " << row.type;
        EXPECT_TRUE(row.icon == 0 || hasIcon(1, 0, row.icon)) << "type " << row.type;
    }
}

TEST_F(PopupNotificationTest, EachLineIsWrittenAsItStands)
{
    PopupNotification popup;
    popup.setLine1PrefixText("Up\ndate");
    show(popup);
    EXPECT_NE(popup.getPrivateImpl()->serialise().find("string0:Up\ndate: \n"), std::string::npos)
        << "without a text the prefix keeps its line";
    popup.setText("fai\nled");
    popup.setLine2PrefixText("Reason");
    popup.setLine2Text("no network");
    popup.setLine2Icon(PopupNotification::ARROW);
    popup.setLine3Text("Try again");
    EXPECT_EQ(screenText(),
        lines({"object:", "name:PopupNotification", "icon0:None", "string0:Up date: fai led",
            "string1:Reason:  => no network", "string2:Try again", "end:"}));
    EXPECT_EQ(textInRects(popup),
        lines({"object:", "name:PopupNotification", "icon0:None", "string0:Up date: fai led",
            "string1:Reason: no network", "string2:Try again", "end:"}));
    popup.setLine2Icon(static_cast<PopupNotification::IconElemType>(9));
    EXPECT_EQ(screenField("string1"), "Reason: no network");
    popup.setType(PopupNotification::FORWARDED);
    popup.setLine2PrefixText("");
    popup.setLine2Text("");
    EXPECT_EQ(screenField("string1"), "=> ");
}

TEST_F(PopupNotificationTest, AForwardedCallNamesBothPartiesAsAPopupCallDoes)
{
    const std::string K = CallPartyIdentifier::UnknownParty;
    PopupNotification popup;
    elsewhere([&] {
        CallPartyIdentifier caller("Bob", K);
        CallPartyIdentifier called("Carol", K);
        popup.setForwardNotification(caller, called, FORWARDED_NO_ANSWER);
    });
    show(popup);
    EXPECT_EQ(screenField("string0"), "Bob");
    EXPECT_EQ(screenField("string1"), "=> Carol " + K);
    EXPECT_EQ(screenField("icon0"), "Forwarded");
}

TEST_F(PopupNotificationTest, WhoGoesTellsOnceAndGivesTheGlassBack)
{
    auto* application = VantoUApplication::getCurrentApplication();
    PopupNotification popup;
    popup.addCommandListener(&listener);
    popup.addCommandListener(&listener);
    popup.setTimeout(2000);
    popup.setText("one");
    show(popup);
    EXPECT_FALSE(application->isFullScreen()) << "one line leaves the first line of the glass";
    popup.setLine2Text("two");
    show(popup);
    EXPECT_TRUE(application->isFullScreen());
    advance(2000);
    EXPECT_EQ(display->getCurrent(), nullptr);
    EXPECT_FALSE(application->isFullScreen());
    EXPECT_EQ(listener.commands(1), std::vector<Command*>{PopupNotification::HIDDEN_COMMAND()});
}

TEST_F(PopupNotificationTest, ATranslationHidesThePopupUntilItComesUpAgain)
{
    TestTranslator translator;
    PopupNotification popup;
    popup.setLine3Text(new TranslationInfo("", "third", "", &translator));
    popup.setText(new TranslationInfo("", "text", "!", &translator));
    show(popup);
    popup.setText(new TranslationInfo("", "text", "?", &translator));
    EXPECT_FALSE(popup.getPrivateImpl()->getWidget()->isVisible());
    popup.show();
    EXPECT_TRUE(popup.getPrivateImpl()->getWidget()->isVisible());
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(screenField("string0"), "fr text?");
    EXPECT_EQ(screenField("string2"), "third") << "the third line is not read again";
}

TEST_F(PopupNotificationTest, TwoPopupsOverAListLeaveInEitherOrder)
{
    List list(0);
    list.append("Bob");
    list.append("Carol");
    PopupNotification notice;
    notice.setText("one");
    PopupConfirm question(true);
    MenuCommand yes("Yes?", 1);
    question.addCommand(&yes);
    question.addCommand(&yes);
    for (const bool isUpperFirst : {true, false}) {
        SCOPED_TRACE(isUpperFirst ? "the upper one first" : "the lower one first");
        show(list);
        show(notice);
        show(question);
        if (isUpperFirst)
            question.dismiss();
        else
            notice.dismiss();
        EXPECT_EQ(display->getCurrent(), isUpperFirst ? static_cast<Displayable*>(&notice) : &question);
        list.setSelectedIndex(0);
        press(UGlobal::KeyDown);
        EXPECT_EQ(list.getSelectedIndex(), isUpperFirst ? 1 : 0) << "only the question takes keys";
        if (isUpperFirst)
            notice.dismiss();
        else
            question.dismiss();
        EXPECT_EQ(display->getCurrent(), &list);
        list.setSelectedIndex(0);
        press(UGlobal::KeyDown);
        EXPECT_EQ(list.getSelectedIndex(), 1);
        EXPECT_EQ(screenField("name"), "VantoListBox");
    }
}
