#include "EveryScreen.h"
#include "PhoneTest.h"

#include <DisplayAPI/PhonebookItem.h>

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

TEST_F(SpecialRowsTest, TheyAnswerWhatIsFixed)
{
    const int icons[] = {0, 1, 2, 3, 4, 5, 0, 0};
    for (int type = -1; type < 7; ++type) {
        const auto number = static_cast<CallPartyIdentifier::PhoneNumberIconType>(type);
        EXPECT_EQ(PhonebookItem::callPartyIconToIconType(number), icons[type + 1]) << type;
    }
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
