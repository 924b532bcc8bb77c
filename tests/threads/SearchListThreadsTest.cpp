#include "Disturbance.h"
#include "RecordingListener.h"
#include "ThreadedPhoneTest.h"

#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/SearchList.h>

using namespace DisplayAPI;

using ThreadedSearchListTest = ThreadedPhoneTest;

TEST_F(ThreadedSearchListTest, RowsAreCopiedAndListenersJoinWhileOthersChangeTheRows)
{
    underDisturbance([this] {
        SearchList list;
        display->setCurrent(&list);
        runThreads(4, [&list](int) {
            RecordingListener listener;
            list.addCommandListener(&listener);
            list.addItemStateListener(&listener);
            auto* mine = new ListItem("mine", true);
            list.append(mine);
            list.append("theirs");
            EXPECT_GE(list.getItems().size(), 2u);
            list.remove(mine);
            delete mine;
        });
        EXPECT_EQ(list.getItems().size(), 4u);
        list.clear();
        EXPECT_TRUE(list.getItems().empty());
    });
}
