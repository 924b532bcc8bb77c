// The smallest phonelet: a list to walk through, and an answer to the user's OK.

#include <DisplayAPI/CommandListener.h>
#include <DisplayAPI/Display.h>
#include <DisplayAPI/List.h>
#include <PhoneSimulator/PhoneSimulator.h>

#include <string>

using namespace DisplayAPI;

namespace {

constexpr const char* Outputs[] = {"Speaker", "HeadSet", "Handset"};

class Choice : public CommandListener {
public:
    explicit Choice(List& list)
        : mList(list)
    {
    }

    /// Runs on a worker thread, which may call every handle.
    void commandAction(Command* command, Displayable*) override
    {
        if (command != List::SELECT_COMMAND())
            return;
        const int index = mList.getSelectedIndex();
        if (index >= 0) // -1: the display has been shut down meanwhile
            mList.setTitle(std::string("In use: ") + Outputs[index]);
    }

private:
    List& mList;
};

}

int main(int argc, char** argv)
{
    return PhoneSimulator(argc, argv).run([](Display& display) {
        List list(0);
        Choice choice(list);
        list.setTitle("Audio output");
        for (const char* name : Outputs)
            list.append(name);
        list.addCommandListener(&choice);
        display.setCurrent(&list);
        display.show();
        display.exec(); // behind it no thread is inside commandAction() any more
    });
}
