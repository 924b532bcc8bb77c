#include "EveryScreen.h"
#include "PhoneTest.h"
#include "TestTranslator.h"

#include <DisplayAPI/ConferenceCallItem.h>
#include <DisplayAPI/GuiRequestEvent.h>
#include <DisplayAPI/List.h>

#include <TreeItemMEG.h>

#include <algorithm>

using namespace DisplayAPI;

namespace {

using Call = CallConnectedItem;
using Conference = ConferenceCallItem;

std::unique_ptr<Call> makeCall(TranslationInfo* text)
{
    return std::make_unique<Call>(Call::CALL_ACTIVE, text, false, nullptr, false, true, false, false, false);
}

class ConferenceCallItemTest : public PhoneTest {
protected:
    TranslationInfo* text(const char* key) { return new TranslationInfo("<", key, ">", &translator); }
    std::unique_ptr<Call> call(const char* name) { return makeCall(text(name)); }
    std::unique_ptr<Conference> newConference()
    {
        return std::make_unique<Conference>(Call::CALL_ACTIVE, text("Conference"), false, false);
    }

    static std::string members(Conference& conference)
    {
        std::string all;
        for (int member = 1; Call* call = conference.getIndexedMember(member); ++member)
            all += call->getText();
        return all;
    }

    TestTranslator translator;
    List list{0};
};

/// Makes a member that the stage deletes in the end.
void addMember(Conference& conference, Stage& stage, const char* name)
{
    conference.appendCall(makeCall(stage.translation(name)).release(), true);
}

std::string tell(Conference& conference)
{
    Call* selected = conference.getSelectedMember();
    Call* first = conference.getIndexedMember(1);
    return conference.getText() + "|" + (selected ? selected->getText() : "none") + "|"
        + (first ? first->getText() : "none");
}

}

INSTANTIATE_TEST_SUITE_P(ConferenceCallItem, EveryRowTest,
    rowFamily(
        inList<Conference>(),
        [](Stage& stage) {
            return std::make_unique<Conference>(Call::CALL_ACTIVE, stage.translation("Conference"), true, true);
        },
        {
            {"appendCall", [](auto& row, auto& stage) { addMember(row, stage, "Anna"); }},
            {"a second one", [](auto& row, auto& stage) { addMember(row, stage, "Bob"); }},
            {"setTitleSuffix", [](auto& row, auto& stage) { row.setTitleSuffix(stage.translation("2")); }},
            {"a literal one", [](auto& row, auto&) { row.setTitleSuffix("2"); }},
            {"Down", [](auto&, auto& stage) { stage.press(UGlobal::KeyDown); }},
            {"setCallItem", [](auto& row, auto&) { row.setCallItem(2); }},
            {"removeCall", [](auto& row, auto&) { row.removeCall(row.getIndexedMember(1)); }},
            {"a third one", [](auto& row, auto& stage) { addMember(row, stage, "Carol"); }},
            {"deletion of a member", [](auto& row, auto& stage) { stage.takeBack(row.getIndexedMember(1)); }},
        },
        tell));

TEST_F(ConferenceCallItemTest, MembersCountFromOneAndTheTitleIsZero)
{
    const auto anna = call("Anna");
    const auto bob = call("Bob");
    const auto carol = call("Carol");
    const auto conference = newConference();
    for (Call* each : {anna.get(), bob.get(), carol.get(), bob.get(), static_cast<Call*>(nullptr)})
        conference->appendCall(each, false);
    EXPECT_EQ(members(*conference), "<Anna><Bob><Carol>");
    EXPECT_EQ(conference->getIndexedMember(0), nullptr);
    EXPECT_EQ(conference->getIndexedMember(4), nullptr);
    EXPECT_EQ(conference->getTitleMember(), conference.get());
    list.append(conference.get());
    show(list);
    const std::pair<int, Call*> cases[]
        = {{3, carol.get()}, {4, carol.get()}, {-1, carol.get()}, {0, conference.get()}, {2, bob.get()}};
    for (const auto& [row, selected] : cases) {
        conference->setCallItem(row);
        EXPECT_EQ(conference->getSelectedMember(), selected) << row;
    }
    for (const int outside : {0, -1, 4})
        conference->removeCall(outside);
    conference->removeCall(conference.get());
    conference->removeCall(3);
    EXPECT_EQ(members(*conference), "<Anna><Bob>");
    conference->removeCall(anna.get());
    EXPECT_EQ(conference->getSelectedMember(), bob.get()) << "the selection stays with its call";
    list.remove(conference.get());
}

TEST_F(ConferenceCallItemTest, TitleAndMembersAreShownAndFollowTheLocale)
{
    const auto anna = call("Anna");
    const auto bob = call("Bob");
    auto* conference = newConference().release();
    list.append(conference);
    conference->setSecondLineText("no member");
    conference->appendCall(anna.get(), false);
    conference->appendCall(bob.get(), false);
    conference->clearSecondLineText();
    conference->setTitleSuffix(text("2"));
    show(list);
    advance(5000);
    EXPECT_EQ(screenField("string0"), "2 <Conference>  0:05");
    EXPECT_EQ(glassLine(0), "\u25A1\u25A12 <Conference>       0:05");
    EXPECT_EQ(glassLine(1), "  <Anna>                  v") << "neither icon nor duration";
    press(UGlobal::KeyDown);
    press(UGlobal::KeyDown);
    EXPECT_EQ(conference->getSelectedMember(), bob.get());
    EXPECT_EQ(glassLine(1), "  <Bob>                   ^");
    translator.prefix = "fr ";
    display->localeChanged("fr");
    EXPECT_EQ(glassLine(0).substr(6, 22), "fr 2 <fr Conference> 0") << "the suffix has nothing around it";
    EXPECT_EQ(glassLine(1), "  <fr Bob>                ^");
}

TEST_F(ConferenceCallItemTest, ACallComesFromWhoeverHoldsIt)
{
    const auto first = newConference();
    const auto second = newConference();
    const auto third = newConference();
    auto* bob = call("Bob").release();
    list.append(bob);
    list.append(second.get());
    show(list);
    first->appendCall(bob, false);
    EXPECT_EQ(list.size(), 1);
    EXPECT_EQ(members(*first), "<Bob>");
    second->appendCall(bob, false);
    EXPECT_EQ(members(*first), "");
    EXPECT_EQ(members(*second), "<Bob>");

    third->appendCall(second.get(), false);
    EXPECT_EQ(list.size(), 0);
    first->appendCall(third.get(), false);
    for (const auto& outer : {first.get(), third.get(), second.get()})
        second->appendCall(outer, false);
    EXPECT_EQ(members(*second), "<Bob>") << "no conference is part of itself";

    changes.onNextNotice = [&] { delete bob; };
    list.append(bob);
    EXPECT_EQ(list.size(), 0) << "a member stays where it is";
    second->removeCall(bob);
    list.append(bob);
    EXPECT_EQ(list.size(), 0) << "it has died in the notice";
}

TEST_F(ConferenceCallItemTest, TheSubscriberMayInterfereWhileACallLeavesItsList)
{
    std::unique_ptr<List> own;
    std::unique_ptr<Conference> conference;
    std::unique_ptr<Conference> other;
    Conference* moving = nullptr;
    const struct {
        const char* name;
        std::function<void()> act;
        const std::unique_ptr<Conference>* joined;
    } cases[] = {
        {"deletes the call", [&] { delete moving; }, nullptr},
        {"deletes the conference", [&] { conference.reset(); }, nullptr},
        {"deletes the list", [&] { own.reset(); }, nullptr},
        {"lets it join another", [&] { other->appendCall(moving, false); }, &other},
        {"turns it around", [&] { moving->appendCall(conference.get(), false); }, nullptr},
    };
    for (const auto& [name, act, joined] : cases) {
        SCOPED_TRACE(name);
        own = std::make_unique<List>(0);
        conference = newConference();
        other = newConference();
        own->append(moving = newConference().release());
        show(*own);
        changes.onNextNotice = act;
        conference->appendCall(moving, false);
        for (const auto* each : {&conference, &other})
            EXPECT_EQ(*each && (*each)->getIndexedMember(1) == moving, each == joined);
        if (ListItem::exists(moving))
            delete moving;
        display->setCurrent(nullptr);
    }
}

TEST_F(ConferenceCallItemTest, MembersAndTheListDieInAnyOrder)
{
    std::string order = "abl";
    do {
        SCOPED_TRACE(order);
        auto anna = call("Anna");
        auto bob = call("Bob");
        auto own = std::make_unique<List>(0);
        auto* conference = newConference().release();
        own->append(conference);
        conference->appendCall(anna.get(), false);
        conference->appendCall(bob.get(), false);
        show(*own);
        for (const char next : order) {
            elsewhere([&] { next == 'a' ? anna.reset() : next == 'b' ? bob.reset() : own.reset(); });
            if (own) {
                EXPECT_EQ(members(*conference), std::string(anna ? "<Anna>" : "") + (bob ? "<Bob>" : ""));
            } else {
                EXPECT_TRUE(!anna || anna->getText().empty()) << "its row died with the list";
            }
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(ConferenceCallItemTest, ASecondCreationReplacesARow)
{
    const auto anna = call("Anna");
    const auto bob = call("Bob");
    const auto conference = newConference();
    conference->appendCall(anna.get(), false);
    conference->appendCall(bob.get(), false);
    GuiRequestEvent call(anna.get(), 19);
    call.ptrParam1 = text("Carol");
    anna->processGuiRequest(call);
    EXPECT_EQ(members(*conference), "<Bob><Carol>");
    GuiRequestEvent again(conference.get(), 101);
    again.ptrParam1 = text("Other");
    conference->processGuiRequest(again);
    EXPECT_EQ(members(*conference), "");
    EXPECT_EQ(anna->getText(), "<Carol>");
    conference->appendCall(anna.get(), false);
    GuiRequestEvent plain(conference.get(), 19);
    plain.ptrParam1 = text("Call");
    conference->processGuiRequest(plain);
    EXPECT_EQ(conference->getText(), "<Call>");
    EXPECT_EQ(conference->getIndexedMember(1), nullptr) << "a conference no more";
}
