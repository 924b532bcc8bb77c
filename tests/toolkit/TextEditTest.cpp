#include "GlassTest.h"

#include "TextCells.h"
#include "VantoTextEditMEG.h"

#include <algorithm>
#include <random>

namespace {

using Edit = VantoTextEditMEG;

/// The characters of a text, each with its combining marks.
std::vector<std::string> characters(const std::string& utf8)
{
    const UString units(utf8);
    std::vector<std::string> result;
    for (std::size_t place = 0; place < units.length();) {
        const std::size_t next = TextCells::forward(units, place);
        result.push_back(units.mid(place, next - place).toUTF8());
        place = next;
    }
    return result;
}

std::string joined(const std::vector<std::string>& texts)
{
    std::string result;
    for (const std::string& text : texts)
        result += text;
    return result;
}

/// What the line must do, with a plain row of characters.
struct Model {
    bool press(int key)
    {
        if (key == UGlobal::KeyLeft || key == UGlobal::KeyClear)
            return erase();
        if (!waiting.empty() && key == waitingKey) {
            choice = (choice + 1) % waiting.size();
            text[cursor - 1] = waiting[choice];
            timeLeft = Edit::TapTime;
            return true;
        }
        settle();
        const bool startsWord = cursor == 0 || text[cursor - 1] == " ";
        const bool isCapital = mode == Edit::UpperCase || (mode == Edit::Capitalised && startsWord);
        const std::string letters
            = mode >= Edit::Numeric ? std::string(1, static_cast<char>(key)) : set(key, isCapital);
        if (text.size() >= limit)
            return false;
        insert(letters.empty() ? "" : characters(letters).front());
        if (characters(letters).size() > 1) {
            waiting = characters(letters);
            waitingKey = key;
            choice = 0;
            timeLeft = Edit::TapTime;
        }
        return true;
    }
    static std::string set(int key, bool isCapital)
    {
        switch (key) {
        case '2': return isCapital ? "AÄ𝄞" : "aä𝄞2";
        case '3': return isCapital ? "D" : "d\u0301三";
        case '4': return isCapital ? "GHI4ÌÍÎÏ" : "ghi4ìíîï";
        default: return " 0+";
        }
    }
    bool erase()
    {
        settle();
        if (cursor == 0)
            return false;
        text.erase(text.begin() + static_cast<std::ptrdiff_t>(--cursor));
        return true;
    }
    bool insert(const std::string& more)
    {
        settle();
        std::vector<std::string> fitting = characters(more);
        fitting.resize(std::min(fitting.size(), limit - std::min(limit, text.size())));
        for (std::string& character : fitting)
            character = static_cast<unsigned char>(character.front()) < 0x20 ? " " : character;
        text.insert(text.begin() + static_cast<std::ptrdiff_t>(cursor), fitting.begin(), fitting.end());
        cursor += fitting.size();
        return !fitting.empty();
    }
    void settle() { waiting.clear(); }
    void pass(std::size_t time)
    {
        timeLeft -= std::min(timeLeft, time);
        if (timeLeft == 0)
            settle();
    }

    std::vector<std::string> text;
    std::size_t cursor = 0;
    std::vector<std::string> waiting; // the characters of the key that could be pressed again
    int waitingKey = 0;
    std::size_t choice = 0;
    std::size_t timeLeft = 0;
    std::size_t limit = 1000;
    int mode = Edit::Capitalised;
};

class TextEditTest : public GlassTest, public testing::WithParamInterface<unsigned> {
protected:
    TextEditTest()
    {
        Edit::msKeypad2lower = text("aä𝄞2?");
        Edit::msKeypad2upper = text("AÄ𝄞?");
        Edit::msKeypad3lower = text("d\u0301三");
        Edit::msKeypad3upper = text("D?");
        Edit::msKeypad4lower = text("Keypad.4.lower.case?");
        below->hide();
        root.addWidget(edit);
        edit->setListener(&recorder);
        edit->setCoordinates(36, 0, 95, 14);
    }

    unsigned below100() { return static_cast<unsigned>(random() % 100); }

    std::mt19937 random{GetParam()};
    Edit* edit = new Edit;
    Recorder recorder;
    Model model;
};

}

TEST_P(TextEditTest, RandomKeysMakeTheTextOfAPlainModel)
{
    static const int keys[] = {'2', '2', '2', '3', '3', '4', '0', UGlobal::KeyLeft, UGlobal::KeyClear};
    static const std::string pastes[]
        = {"", "Anna", std::string("a\0b\nc", 5), "\U0001D11E", "e\u0301\u0302", "三二", std::string(40, 'x')};
    for (int step = 0; step < 400; ++step) {
        const unsigned dice = below100();
        bool isChanged = false;
        if (dice < 70) {
            const int key = keys[random() % std::size(keys)];
            const bool wasEmpty = model.text.empty();
            isChanged = model.press(key);
            EXPECT_EQ(press(key), UGlobal::isDialKey(key) || !wasEmpty);
            EXPECT_EQ(recorder.takeTypes(), isChanged ? Types{EventType::EditTextChanged} : Types{});
        } else if (dice < 78) {
            const std::size_t time = random() % 1500;
            const bool isOver = !model.waiting.empty() && time >= model.timeLeft;
            model.pass(time);
            advance(time);
            EXPECT_EQ(recorder.takeTypes(), isOver ? Types{EventType::ContentChanged} : Types{});
        } else if (dice < 86) {
            const bool isRight = random() % 2;
            model.settle();
            const std::size_t from = model.cursor;
            model.cursor = isRight ? std::min(from + 1, model.text.size()) : from - std::min<std::size_t>(from, 1);
            EXPECT_EQ(edit->moveCursor(isRight ? 1 : -1), model.cursor != from);
        } else if (dice < 91) {
            const std::string paste = pastes[random() % std::size(pastes)];
            isChanged = model.insert(paste);
            EXPECT_EQ(edit->insert(text(paste)), isChanged);
        } else if (dice < 94) {
            isChanged = model.erase();
            EXPECT_EQ(edit->deleteCharacter(), isChanged);
        } else if (dice < 96) {
            model.settle();
            model.mode = static_cast<int>(random() % 5);
            edit->setMode(model.mode);
        } else if (dice < 98) {
            model.limit = 1 + random() % 30;
            edit->setMaxLength(static_cast<int>(model.limit));
        } else {
            edit->setCoordinates(36, 0, 35 + 6 * static_cast<int>(random() % 21), 14);
            edit->refresh();
        }
        ASSERT_EQ(edit->getText().toUTF8(), joined(model.text)) << "step " << step;
        ASSERT_EQ(edit->cursorPosition(), static_cast<int>(model.cursor)) << "step " << step;
        ASSERT_EQ(edit->getKeyPadShown(), !model.waiting.empty()) << "step " << step;
        ASSERT_EQ(edit->getActualKeySet().toUTF8(), joined(model.waiting));

        // Nothing outside its place, and the cursor always inside it.
        const UString shown(line(0));
        const auto columns = static_cast<std::size_t>(edit->getRect().width() / 6);
        ASSERT_EQ((shown.mid(0, 6) + shown.mid(6 + columns)).toUTF8(), std::string(27 - columns, ' '));
        bool isCursorShown = columns == 0 || shown.mid(6, columns).find(text("_")) >= 0;
        for (int column = 0; column < 27; ++column)
            isCursorShown |= lineIsInverse(glass, 0, column);
        ASSERT_TRUE(isCursorShown) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TextEditTest, testing::Range(1U, 9U));
