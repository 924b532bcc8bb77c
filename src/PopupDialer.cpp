#include <DisplayAPI/PopupDialer.h>

#include <DisplayAPI/Command.h>

namespace DisplayAPI {

Command* PopupDialer::BackCommand()
{
    static Command& command = *new Command("", Command::Back);
    return &command;
}

}
