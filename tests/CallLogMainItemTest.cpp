#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallLogMainItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>

#include <tuple>

using namespace DisplayAPI;

namespace {

constexpr const char* Unknown = CallPartyIdentifier::UnknownParty;

CallPartyIdentifier* party(const char* name, const char* number, int kind)
{
    auto* made = new CallPartyIdentifier(name, number);
    made->numberIconType = static_cast<CallPartyIdentifier::PhoneNumberIconType>(kind);
    return made;
}

class CallLogMainItemTest : public PhoneTest { };

}

INSTANTIATE_TEST_SUITE_P(CallLogMainItem, EveryRowTest,
    rowFamily(
        inList<CallLogMainItem>(),
        [](Stage&) {
            return std::make_unique<CallLogMainItem>(party("Anna", "4711", 1), "noon", 3, false, true, 7, true);
        },
        {{"setbold", [](auto& row, auto&) { row.setbold(true); }}},
        [](CallLogMainItem& row) { return row.getText(); }));

TEST_F(CallLogMainItemTest, TheRowNamesItsPartyByWhatIsKnown)
{
    const std::tuple<const char*, CallPartyIdentifier*, const char*, const char*> cases[] = {
        {"private", party("Anna", "4711", 1), "Anna 4711", "Private"},
        {"mobile", party("Anna", "4711", 4), "Anna 4711", "Mobile"},
        {"no kind", party("Anna", "4711", 0), "Anna 4711", "(no such field)"},
        {"a kind that is none", party("Anna", "4711", 5), "Anna 4711", "(no such field)"},
        {"a name without a number", party("Anna", Unknown, 1), "Anna nobody", "(no such field)"},
        {"a number without a name", party(Unknown, "4711", 3), "4711", "Business2"},
        {"nothing known", party(Unknown, Unknown, 2), "nobody", "Business1"},
        {"empty texts", party("", "", 1), "", "Private"},
        {"no party", nullptr, "nobody", "(no such field)"},
    };
    TestTranslator translator;
    translator.words[Unknown] = "nobody";
    display->setTranslator(&translator);
    for (const auto& [what, whom, text, icon] : cases) {
        SCOPED_TRACE(what);
        List list(0);
        list.append(new CallLogMainItem(whom, "noon", 2, false, false));
        show(list);
        EXPECT_EQ(screenField("string0"), std::string(" ") + text);
        EXPECT_EQ(screenField("icon0"), icon);
    }
    display->setTranslator(nullptr);
    EXPECT_EQ(CallLogMainItem(nullptr, "", 1, false, false).getText(), Unknown) << "without a translator";
}

TEST_F(CallLogMainItemTest, TheWholeRowIsWrittenAndPainted)
{
    List list(0);
    list.append(new CallLogMainItem(party("Ann", "471", 4), "2001-02-03 10:42", 3, false, true, 0, true));
    show(list);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "subitem:", "name:CallLogListItem", "icon0:CompletedElsewhere",
            "icon1:Mobile", "string0: Ann 471 ->", "string1: 3", "string2: 2001-02-03", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(0), "\u25A1\u25A1Ann 471   (3) 2001-02-03>");
}
