#include "CallRowsMEG.h"
#include "ListFixture.h"

#include <ULoop.h>

namespace {

class CallRowsTest : public ListFixture {
protected:
    static CallLogListItemMEG* logRow(const std::string& date, int icon = 4, int count = 1)
    {
        return new CallLogListItemMEG(UString("Bob"), UString("4712"), static_cast<CallLogListItemMEG::IconType>(icon),
            UString(date), count, false, false, false, -1);
    }
};

}

TEST_F(CallRowsTest, AMomentIsTakenApartOnlyInItsOwnForm)
{
    struct Case {
        std::string moment;
        std::string date;
        std::string time;
    };
    for (const Case& one : {
             Case{"2001-02-03 10:42", "2001-02-03", "10:42"},
             Case{"yesterday", "yesterday", "yesterday"},
             Case{"2001-02-0a 10:42", "2001-02-0a 10:42", "2001-02-0a 10:42"},
         }) {
        SCOPED_TRACE(one.moment);
        const CallMomentMEG moment(text(one.moment));
        EXPECT_EQ(moment.date().toUTF8(), one.date);
        EXPECT_EQ(moment.time().toUTF8(), one.time);
        EXPECT_FALSE(moment.isPresentDay());
    }
    EXPECT_TRUE(CallMomentMEG(text("2024-01-01 10:42")).isPresentDay()) << "a stopped clock has this day";
    EXPECT_EQ(CallMomentMEG(text("2024-02-02 10:42")).shown().toUTF8(), "02-02") << "the year is this one";
    ULoop::instance().advance(std::uint64_t{15 * 60 * 60 * 1000});
    EXPECT_TRUE(CallMomentMEG(text("2024-01-02 10:42")).isPresentDay());
}

TEST_F(CallRowsTest, ACallLogRowShowsWhoAndWhen)
{
    auto* row = logRow("2001-02-03 10:42");
    list.addItem(row);
    list.addItem(logRow("soon", 4, 2));
    EXPECT_EQ(line(0), "Bob 4712         2001-02-03");
    EXPECT_EQ(line(1), "Bob 4712           (2) soon");
    EXPECT_EQ(row->getDisplayedText(), text("Bob 4712"));
    EXPECT_EQ(row->getItemType(), VantoListBoxItemMEG::CallLogRow);

    list.hideHighlightBar();
    const UScreenWE1 thin = picture();
    row->setBold(true);
    EXPECT_FALSE(picture() == thin) << "calls that nobody has looked at stand out";
    row->setBold(false);
    EXPECT_TRUE(picture() == thin);
}

TEST_F(CallRowsTest, ALineShowsItsNameAndItsIdentity)
{
    auto* row = new LineOverviewListItem(
        static_cast<LineOverviewListItem::LineStateIconType>(1), text("Sales"), text("4711"), false);
    list.addItem(row);
    EXPECT_EQ(line(0), "\u25A1\u25A1Sales                4711");
    row->setPrefix(text("HD"));
    EXPECT_EQ(row->getText(), text("HD Sales 4711"));
    EXPECT_TRUE(hasIcon(0, 0, Icons::ConnectedCall));
    row->setIconType(static_cast<LineOverviewListItem::LineStateIconType>(2));
    EXPECT_TRUE(hasIcon(0, 0, 14)) << "it rings";
}

TEST_F(CallRowsTest, ACallBackShowsItsStateWhoAndWhen)
{
    const auto add = [this](CallBackListItemMEG::CallBackState state, const char* date) {
        auto* row = new CallBackListItemMEG(
            text("Bob"), CallBackListItemMEG::Busy, state, static_cast<CallBackListItemMEG::IconType>(4), text(date));
        list.addItem(row);
        return row;
    };
    auto* active = add(CallBackListItemMEG::Active, "Monday");
    add(CallBackListItemMEG::Paused, "2001-02-03 10:42");
    EXPECT_EQ(line(0), "\u25A1\u25A1Bob                Monday");
    EXPECT_EQ(line(1), "\u25A1\u25A1Bob            2001-02-03");
    list.hideHighlightBar();
    EXPECT_TRUE(hasIcon(0, 0, 6));
    EXPECT_TRUE(hasIcon(1, 0, Icons::HeldCall));
    active->setIcon(50);
    EXPECT_TRUE(hasIcon(0, 0, 50)) << "an icon of its own goes before";
}

TEST_F(CallRowsTest, TheEndlessBarRunsWhileItIsOnTheGlass)
{
    auto* row = new InfiniteBarItemMEG;
    list.addItem(row);
    const UScreenWE1 still = picture();
    advance(1000);
    EXPECT_TRUE(picture() == still) << "nobody has started it";

    row->startInfiniteProgressBar();
    const UScreenWE1 first = picture();
    advance(1000);
    EXPECT_FALSE(picture() == first);
    advance(1200);
    EXPECT_TRUE(picture() == first) << "it begins again";
    widget->hide();
    advance(1000);
    EXPECT_EQ(ULoop::instance().timeToNextTimer(), -1) << "nobody is to be woken up for what nobody sees";
    widget->show();
    delete widget;
    advance(1000);
}
