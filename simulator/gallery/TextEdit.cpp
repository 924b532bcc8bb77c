#include "Gallery.h"

#include <UPainter.h>
#include <VantoTextEditMEG.h>

namespace {

using namespace Gallery;

/// The line on a glass of its own, with the letters of a pressed key below it.
class Line : public UWidget {
public:
    Line() { edit->setListener(this); }

    void paint(UPainter& painter) override
    {
        painter.clearLines(0, 1);
        painter.textRight(0, UPainter::Columns - 1, edit->modeText());
        if (edit->getKeyPadShown())
            edit->paintKeypad(painter, 1);
    }
    UWidget* focusTarget() override { return edit; }

    VantoTextEditMEG* edit = new VantoTextEditMEG(this);
};

VantoTextEditMEG* addLine(Stage& stage, int columns)
{
    VantoTextEditMEG* edit = stage.add<Line>()->edit;
    edit->setCoordinates(0, 0, columns * 6 - 1, 14);
    edit->setListener(stage.listener());
    return edit;
}

const Exhibit typing("text-edit", R"(
    shot empty
    type 26626
    shot letter
    press 2 5
    shot umlaut
    advance 1s
    shot stands
    type 0
    advance 1s
    type 22
    shot word
    press LEFT 9
    shot deleted
    press LEFT
)",
    [](Stage& stage) { addLine(stage, 22); });

const Exhibit longText("text-edit-long", R"(
    shot end
    press LEFT 3
    shot deleted
)",
    [](Stage& stage) { addLine(stage, 22)->setText(text("The quick brown fox jumps over the lazy dog")); });

const Exhibit cursor("text-edit-cursor", R"(
    shot middle
    press LEFT
    shot deleted
    type 9999
    shot typed
)",
    [](Stage& stage) {
        VantoTextEditMEG* edit = addLine(stage, 22);
        edit->setText(text("The quick brown fox jumps over the lazy dog"));
        for (int step = 0; step < 23; ++step)
            edit->moveCursor(-1);
    });

const Exhibit secret("text-edit-secret", R"(
    type 2233
    shot asterisks
)",
    [](Stage& stage) {
        VantoTextEditMEG* edit = addLine(stage, 22);
        edit->setText(text("secret"));
        edit->setEchoMode(VantoTextEditMEG::EchoAsterisks);
    });

}
