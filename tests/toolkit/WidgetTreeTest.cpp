#include "UWidget.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

/// A widget that writes into a protocol what happens to it.
class TestWidget : public UWidget {
public:
    explicit TestWidget(std::string& protocol, char name, UWidget* parent = nullptr)
        : UWidget(parent)
        , mProtocol(protocol)
        , mName(name)
    {
    }
    ~TestWidget() override { note('~'); }

    void childLeft(UWidget* child) override
    {
        note('-');
        EXPECT_EQ(child->parentWidget(), nullptr);
        if (onChildLeft)
            onChildLeft();
    }
    void parentChanged() override { note(parentWidget() ? '+' : '0'); }

    std::function<void()> onChildLeft;

private:
    void note(char what) { mProtocol += {what, mName, ' '}; }

    std::string& mProtocol;
    char mName;
};

std::vector<UWidget*> childrenOf(const UWidget& parent)
{
    std::vector<UWidget*> forward, backward;
    for (UWidget* child = parent.firstChild(); child; child = child->nextSibling())
        forward.push_back(child);
    for (UWidget* child = parent.lastChild(); child; child = child->previousSibling())
        backward.insert(backward.begin(), child);
    EXPECT_EQ(forward, backward) << "the two directions of the chain differ";
    return forward;
}

using Children = std::vector<UWidget*>;

class WidgetTreeTest : public testing::Test {
protected:
    std::string protocol;
};

}

TEST_F(WidgetTreeTest, AWidgetLeavesItsOldParentAndGoesToTheEndOfTheNewOne)
{
    TestWidget p(protocol, 'p'), q(protocol, 'q');
    auto* a = new TestWidget(protocol, 'a', &p);
    auto* b = new TestWidget(protocol, 'b', &p);
    auto* c = new TestWidget(protocol, 'c', &p);
    EXPECT_EQ(childrenOf(p), (Children{a, b, c}));
    EXPECT_EQ(protocol, "") << "a child that is born is no news";

    a->setParent(&p);
    EXPECT_EQ(childrenOf(p), (Children{a, b, c})) << "the present parent changes nothing";
    q.addWidget(b);
    q.addWidget(a);
    EXPECT_EQ(protocol, "-p +b -p +a ");
    EXPECT_EQ(childrenOf(p), Children{c});
    EXPECT_EQ(childrenOf(q), (Children{b, a}));

    protocol.clear();
    p.removeWidget(a);
    q.removeWidget(nullptr);
    q.addWidget(nullptr);
    EXPECT_EQ(protocol, "") << "only a child can be removed";
    q.removeWidget(a);
    EXPECT_EQ(protocol, "-q 0a ");
    EXPECT_EQ(a->parentWidget(), nullptr);
    delete a;
}

TEST_F(WidgetTreeTest, AWidgetNeverComesBelowItself)
{
    TestWidget top(protocol, 't');
    auto* middle = new TestWidget(protocol, 'm', &top);
    auto* low = new TestWidget(protocol, 'l', middle);
    top.setParent(low);
    top.setParent(&top);
    middle->setParent(low);
    EXPECT_EQ(protocol, "");
    EXPECT_EQ(top.parentWidget(), nullptr);
    EXPECT_EQ(middle->parentWidget(), &top);
}

TEST_F(WidgetTreeTest, AParentDeletesItsChildrenFromTheLastOnWithoutANotice)
{
    auto parent = std::make_unique<TestWidget>(protocol, 'p');
    auto* a = new TestWidget(protocol, 'a', parent.get());
    new TestWidget(protocol, 'b', a);
    new TestWidget(protocol, 'c', parent.get());
    parent.reset();
    EXPECT_EQ(protocol, "~p ~c ~a ~b ");
}

TEST_F(WidgetTreeTest, ADyingChildLeavesFirst)
{
    TestWidget parent(protocol, 'p');
    auto* a = new TestWidget(protocol, 'a', &parent);
    auto* b = new TestWidget(protocol, 'b', &parent);
    auto* c = new TestWidget(protocol, 'c', &parent);
    delete b;
    EXPECT_EQ(childrenOf(parent), (Children{a, c}));
    delete c;
    delete a;
    EXPECT_EQ(protocol, "~b -p ~c -p ~a -p ");
    EXPECT_TRUE(childrenOf(parent).empty());
}

TEST_F(WidgetTreeTest, AParentMayLoseOtherChildrenWhileOneLeaves)
{
    TestWidget parent(protocol, 'p');
    auto* a = new TestWidget(protocol, 'a', &parent);
    auto* b = new TestWidget(protocol, 'b', &parent);
    parent.onChildLeft = [&] {
        parent.onChildLeft = nullptr;
        delete a;
    };
    delete b;
    EXPECT_TRUE(childrenOf(parent).empty());
}

TEST_F(WidgetTreeTest, ListenersInTheTreeSurviveEveryOrderOfDestruction)
{
    // A composite that listens to its own child, and a child that listens to its parent's sibling.
    for (const bool childFirst : {false, true}) {
        auto root = std::make_unique<TestWidget>(protocol, 'r');
        auto* composite = new TestWidget(protocol, 'c', root.get());
        auto* list = new TestWidget(protocol, 'l', composite);
        auto* other = new TestWidget(protocol, 'o', root.get());
        list->setListener(composite);
        composite->setListener(other);
        other->setListener(list);
        if (childFirst)
            delete list;
        root.reset();
    }
}
