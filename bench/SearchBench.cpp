#include "Benchmarks.h"
#include "Phone.h"
#include "Report.h"

#include <DisplayAPI/ListItem.h>
#include <DisplayAPI/SearchList.h>

#include <Types.h>
#include <UApplication.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace DisplayAPI;

namespace {

/// What one key may cost the GUI thread, with the application's answer to it.
constexpr double MostMilliseconds = 20;

/// How the application answers: it goes to the first name that fits, or leaves those rows alone that fit.
enum class Answer { Jump, Filter };

/// So many names of three letters, in their order.
std::vector<std::string> makeNames(int count)
{
    constexpr int letters = 26;
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) {
        const int number = i * letters * letters * letters / count;
        const auto letter = [number](int divisor) { return static_cast<char>(number / divisor % letters); };
        names.push_back({static_cast<char>('A' + letter(letters * letters)), static_cast<char>('a' + letter(letters)),
            static_cast<char>('a' + letter(1))});
    }
    return names;
}

class Directory {
public:
    Directory(Display& display, int count, Answer answer)
        : mDisplay(display)
        , mNames(makeNames(count))
        , mAnswer(answer)
    {
        mList.setTitle("Directory");
        fill(0, mNames.size());
        mDisplay.setCurrent(&mList);
    }
    ~Directory() { mDisplay.setCurrent(nullptr); }

    /// One turn: the key, the answer, the text for the subscriber, the frame. Returns its nanoseconds.
    double press(int key)
    {
        const double begin = nowInNanoseconds();
        UApplication& application = *UApplication::instance();
        application.postKey(key, UGlobal::KeyPressed);
        application.postKey(key, UGlobal::KeyReleased);
        application.processEvents();
        answer();
        benchmark::DoNotOptimize(mDisplay.serialiseByRect({Rect(0, 0, 162, 31)}, ""));
        application.processEvents();
        return nowInNanoseconds() - begin;
    }

private:
    void answer()
    {
        const std::string wanted = mList.getSearchText();
        const auto first = std::lower_bound(mNames.begin(), mNames.end(), wanted);
        const auto last = std::find_if(first, mNames.end(), [&](auto& name) { return !name.starts_with(wanted); });
        const auto from = static_cast<std::size_t>(first - mNames.begin());
        const auto found = static_cast<std::size_t>(last - first);
        if (mAnswer == Answer::Jump)
            mList.setSelectedIndex(static_cast<int>(from));
        else
            fill(from, found);
        mList.setSearchCountIndicator(static_cast<int>(found));
    }

    void fill(std::size_t from, std::size_t count)
    {
        mList.clear();
        for (std::size_t i = from; i < from + count; ++i)
            mList.append(mNames[i]);
    }

    Display& mDisplay;
    std::vector<std::string> mNames;
    Answer mAnswer;
    SearchList mList;
};

/// Types two letters and deletes them again. Returns the longest turn.
double typeAndDelete(const std::string& mode, const std::string& name, Answer answer)
{
    Phone phone;
    double longest = 0;
    phone.onGui([&] {
        Directory directory(phone.display(), 10'000, answer);
        for (const int key : {int{'2'}, int{'6'}, int{UGlobal::KeyLeft}, int{UGlobal::KeyLeft}})
            longest = std::max(longest, directory.press(key));
    });
    Report::addFigure(mode, name, longest / 1e6, "ms", MostMilliseconds);
    return longest;
}

}

void registerSearchBenchmarks(const std::string& mode)
{
    for (const Answer answer : {Answer::Jump, Answer::Filter}) {
        const std::string name = std::string("longest turn while typing over 10,000 rows, ")
            + (answer == Answer::Jump ? "jumping" : "filtering");
        registerRounds(mode, name, 4, [=] { return typeAndDelete(mode, name, answer); });
    }
}
