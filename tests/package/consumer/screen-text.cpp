// A phonelet without a telephone: prints the text of its screen.

#include <DisplayAPI/Display.h>
#include <DisplayAPI/DisplayEventIfc.h>
#include <DisplayAPI/List.h>

#include <iostream>
#include <string>

using namespace DisplayAPI;

namespace {

class Reader final : public DisplayEventIfc {
public:
    void displayChanged(std::string) override { }
};

}

int main()
{
    Display display("Consumer", "en", "dd.mm.yy", "hh:mm", false, nullptr);
    Reader reader;
    display.subscribe(&reader);
    List list(0);
    list.setTitle("Audio output");
    list.append("Speaker");
    display.setCurrent(&list);
    display.show();
    std::cout << display.serialiseByRect({Rect(0, 0, 162, 31)}, "");
}
