#include "EveryScreen.h"
#include "PhoneTest.h"

#include <DisplayAPI/PhonebookItem.h>
#include <DisplayAPI/WaveStyleListItem.h>

// Rows that carry an interface and do little on this telephone.

using namespace DisplayAPI;

namespace {

class SpecialRowsTest : public PhoneTest { };

}

INSTANTIATE_TEST_SUITE_P(PhonebookItem, EveryRowTest,
    rowFamily(
        inList<PhonebookItem>(),
        [](Stage& stage) {
            return std::make_unique<PhonebookItem>(PhonebookItem::Mobile, true, stage.translation("Anna"), true);
        },
        {{"setText", [](auto& row, auto&) { row.setText("Bob"); }}}, [](PhonebookItem& row) { return row.getText(); }));

INSTANTIATE_TEST_SUITE_P(WaveStyleListItem, EveryRowTest,
    rowFamily(
        inList<WaveStyleListItem>(), [](Stage&) { return std::make_unique<WaveStyleListItem>(); },
        {
            {"without effect", [](auto& row, auto&) { row.setRightText("noon"); }},
            {"as any row", [](ListItem& row, auto&) { row.setRightText("noon"); }},
        },
        [](WaveStyleListItem& row) {
            return row.widgetName() + row.getText() + row.getRightSideText() + row.ListItem::getRightText();
        }));

TEST_F(SpecialRowsTest, TheyAnswerWhatIsFixed)
{
    const int icons[] = {0, 1, 2, 3, 4, 5, 0, 0};
    for (int type = -1; type < 7; ++type) {
        const auto number = static_cast<CallPartyIdentifier::PhoneNumberIconType>(type);
        EXPECT_EQ(PhonebookItem::callPartyIconToIconType(number), icons[type + 1]) << type;
    }
    WaveStyleListItem row("Anna", true);
    ListItem& base = row;
    EXPECT_EQ(base.getText(), "");
    base.setText("Bob");
    EXPECT_EQ(row.getText(), "");
    EXPECT_EQ(base.getText(), "Bob");
    EXPECT_EQ(base.getRightIcon(), 11);
    EXPECT_EQ(row.waveStyleListItemText({}), "Not implemented");
    EXPECT_FALSE(row.isReadOnly() || row.isTruncated());
}

TEST_F(SpecialRowsTest, ADirectoryRowIsTheListsAndNotTheGlasses)
{
    List list(0);
    auto* row = new PhonebookItem(PhonebookItem::Mobile, true, "Anna", true);
    list.append(row);
    list.append("Bob");
    show(list);
    EXPECT_EQ(list.getItems().size(), 2U);
    EXPECT_EQ(list.size(), 1);
    EXPECT_EQ(screenField("string0"), " Bob");
}
