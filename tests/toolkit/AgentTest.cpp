#include "UAgent.h"
#include "UEvent.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

/// An agent whose every hook a test can fill, and which raises what it is told to.
class TestAgent : public UAgent {
public:
    void event(UEvent* event) override
    {
        types.push_back(event->type);
        if (onEvent)
            onEvent();
    }
    void removeEmitter(UAgent* emitter) override
    {
        lostEmitters.push_back(emitter);
        if (onLostEmitter)
            onLostEmitter();
    }

    using UAgent::emit;

    std::vector<int> types;
    std::vector<UAgent*> lostEmitters;
    std::function<void()> onEvent;
    std::function<void()> onLostEmitter;
};

using Types = std::vector<int>;

}

TEST(AgentTest, EmitTellsWhetherTheEmitterHasDied)
{
    auto listener = std::make_unique<TestAgent>();
    auto* emitter = new TestAgent;
    emitter->setListener(listener.get());

    listener->onEvent = [&] { listener.reset(); };
    EXPECT_TRUE(emitter->emit(1, emitter)) << "the listener died inside its event";
    EXPECT_EQ(emitter->listener(), nullptr);

    listener = std::make_unique<TestAgent>();
    emitter->setListener(listener.get());
    listener->onEvent = [&] { delete emitter; };
    EXPECT_FALSE(emitter->emit(2, emitter));
    EXPECT_EQ(listener->types, Types{2});
    EXPECT_FALSE(listener->hasEmitters());
}

TEST(AgentTest, EveryEmissionOnTheStackLearnsOfADeath)
{
    auto* inner = new TestAgent;
    TestAgent relay, outer;
    inner->setListener(&relay);
    relay.setListener(&outer);
    bool relayLives = false;
    relay.onEvent = [&] { relayLives = relay.emit(2, &relay); };
    outer.onEvent = [&] { delete inner; };
    EXPECT_FALSE(inner->emit(1, inner));
    EXPECT_TRUE(relayLives);

    auto* nested = new TestAgent;
    nested->setListener(&relay);
    std::vector<bool> lives;
    int depth = 0;
    relay.onEvent = [&] {
        if (++depth < 3)
            lives.push_back(nested->emit(1, nested));
        else
            delete nested;
    };
    EXPECT_FALSE(nested->emit(1, nested));
    EXPECT_EQ(lives, (std::vector<bool>{false, false}));
}

TEST(AgentTest, TheLinkIsCutWhicheverEndDiesFirst)
{
    auto listener = std::make_unique<TestAgent>();
    std::vector<std::unique_ptr<TestAgent>> emitters;
    for (int i = 0; i < 3; ++i) {
        emitters.push_back(std::make_unique<TestAgent>());
        emitters.back()->setListener(listener.get());
    }
    UAgent* middle = emitters[1].get();
    emitters.erase(emitters.begin() + 1);
    EXPECT_EQ(listener->lostEmitters, std::vector<UAgent*>{middle});
    emitters[0]->emit(1, nullptr);
    emitters[1]->emit(2, nullptr);
    EXPECT_EQ(listener->types, (Types{1, 2}));

    listener.reset();
    EXPECT_EQ(emitters[0]->listener(), nullptr);
    EXPECT_EQ(emitters[1]->listener(), nullptr);
    EXPECT_TRUE(emitters[0]->emit(3, nullptr));
}

TEST(AgentTest, SetListenerReplacesAndTellsTheOldOneLast)
{
    TestAgent first, second, third, emitter;
    emitter.setListener(&first);
    emitter.setListener(&first);
    EXPECT_TRUE(first.lostEmitters.empty());

    // The old listener may find another one for its emitter: the lists of all three stay right.
    first.onLostEmitter = [&] { emitter.setListener(&third); };
    emitter.setListener(&second);
    EXPECT_EQ(emitter.listener(), &third);
    EXPECT_FALSE(first.hasEmitters());
    EXPECT_FALSE(second.hasEmitters());
    emitter.removeListener(&second);
    EXPECT_EQ(emitter.listener(), &third) << "only its own listener can be taken away";
    emitter.setListener(nullptr);
    EXPECT_FALSE(third.hasEmitters());
    EXPECT_EQ(third.lostEmitters.size(), 1U);

    auto dying = std::make_unique<TestAgent>();
    first.onLostEmitter = [&] { dying.reset(); };
    emitter.setListener(&first);
    emitter.setListener(dying.get());
    EXPECT_EQ(emitter.listener(), nullptr) << "the old listener deleted the new one";
}

TEST(AgentTest, AnAgentThatIsGoingCannotBeBound)
{
    TestAgent listener, other;
    auto emitter = std::make_unique<TestAgent>();
    emitter->setListener(&listener);
    UAgent* going = emitter.get();
    listener.onLostEmitter = [&] { going->setListener(&other); };
    emitter.reset();
    EXPECT_FALSE(other.hasEmitters());

    auto itself = std::make_unique<TestAgent>();
    itself->setListener(itself.get());
    itself.reset();
}

TEST(ListenerHubTest, WhoJoinsLeavesOrDiesWhileBeingToldIsTreatedRight)
{
    ListenerHub& hub = ListenerHub::instance();
    std::string order;
    TestAgent first, leaves, late, last;
    auto dies = std::make_unique<TestAgent>();
    auto suicidal = std::make_unique<TestAgent>();
    first.onEvent = [&] {
        order += 'f';
        hub.remove(&leaves);
        dies.reset();
        hub.add(&late);
    };
    leaves.onEvent = [&] { order += 'X'; };
    dies->onEvent = [&] { order += 'X'; };
    suicidal->onEvent = [&] {
        order += 's';
        suicidal.reset();
    };
    late.onEvent = [&] { order += 'n'; };
    last.onEvent = [&] { order += 'l'; };
    for (TestAgent* agent : {&first, &leaves, dies.get(), suicidal.get(), &last})
        hub.add(agent);
    hub.notify(EventType::LocaleChanged);
    EXPECT_EQ(order, "fsl");
    order.clear();
    hub.notify(EventType::LocaleChanged);
    EXPECT_EQ(order, "fln");
}
