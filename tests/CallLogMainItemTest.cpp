#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/CallLogMainItem.h>
#include <DisplayAPI/CallPartyIdentifier.h>
#include <DisplayAPI/DisplayablePrivate.h>

using namespace DisplayAPI;

namespace {

constexpr const char* Unknown = CallPartyIdentifier::UnknownParty;

CallPartyIdentifier* party(const char* name, const char* number, int kind)
{
    auto* made = new CallPartyIdentifier(name, number);
    made->numberIconType = static_cast<CallPartyIdentifier::PhoneNumberIconType>(kind);
    return made;
}

class CallLogMainItemTest : public PhoneTest {
protected:
    CallLogMainItemTest() { DisplayablePrivate::commonTranslator = &translator; }
    ~CallLogMainItemTest() override
    {
        display->setCurrent(nullptr);
        DisplayablePrivate::commonTranslator = nullptr;
    }

    TestTranslator translator;
};

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
    struct Case {
        const char* what;
        const char* name;
        const char* number;
        int kind;
        const char* text;
        const char* icon;
    };
    const Case cases[] = {
        {"private", "Anna", "4711", 1, "Anna 4711", "Private"},
        {"mobile", "Anna", "4711", 4, "Anna 4711", "Mobile"},
        {"no kind", "Anna", "4711", 0, "Anna 4711", "(no such field)"},
        {"a kind that is none", "Anna", "4711", 5, "Anna 4711", "(no such field)"},
        {"a name without a number", "Anna", Unknown, 1, "Anna de:Caller.Unknown.XXX", "(no such field)"},
        {"a number without a name", Unknown, "4711", 3, "4711", "Business2"},
        {"nothing known", Unknown, Unknown, 2, "de:Caller.Unknown.XXX", "Business1"},
        {"empty texts", "", "", 1, "", "Private"},
    };
    translator.prefix = "de:";
    for (const Case& one : cases) {
        SCOPED_TRACE(one.what);
        List list(0);
        list.append(new CallLogMainItem(party(one.name, one.number, one.kind), "noon", 2, false, false));
        show(list);
        EXPECT_EQ(screenField("string0"), std::string(" ") + one.text);
        EXPECT_EQ(screenField("icon0"), one.icon);
    }
}

TEST_F(CallLogMainItemTest, TheWholeRowIsWrittenAndPainted)
{
    List list(0);
    list.append(new CallLogMainItem(nullptr, "soon", 1, false, true, 0, true));
    list.append(new CallLogMainItem(party("Ann", "471", 4), "2001-02-03 10:42", 3, false, true, 0, true));
    show(list);
    EXPECT_EQ(screenField("string0"), " Caller.Unknown.XXX ->");
    press(UGlobal::KeyDown);
    EXPECT_EQ(screenText(),
        lines({"object:", "name:VantoListBox", "subitem:", "name:CallLogListItem", "icon0:CompletedElsewhere",
            "icon1:Mobile", "string0: Ann 471 ->", "string1: 3", "string2: 2001-02-03", "endsubitem:", "end:"}));
    EXPECT_EQ(glassLine(1), "\u25A1\u25A1Ann 471   (3) 2001-02-03>");
}
