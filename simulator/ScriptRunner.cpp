#include "ScriptRunner.h"

#include "BlockDrawing.h"
#include "GoldenFolder.h"
#include "Phone.h"
#include "Picture.h"
#include "Printable.h"
#include "ScreenText.h"

#include <exception>
#include <ostream>
#include <stdexcept>

namespace Simulator {

namespace {

/// True for a step that does something to the telephone.
bool acts(const Step& step)
{
    switch (step.kind) {
    case Step::Kind::Press:
    case Step::Kind::Hold:
    case Step::Kind::Release:
    case Step::Kind::Advance:
    case Step::Kind::Custom: return true;
    default: return false;
    }
}

}

void printScreen(const Snapshot& snapshot, std::ostream& output)
{
    for (const std::string& line : drawFramedBlocks(snapshot.screen))
        output << line << "\n";
    output << snapshot.text << std::endl;
}

ScriptRunner::ScriptRunner(Phone& phone, const Settings& settings, std::ostream& output, std::ostream& errors)
    : mPhone(phone)
    , mSettings(settings)
    , mOutput(output)
    , mErrors(errors)
{
}

int ScriptRunner::run(const Script& script)
{
    int failures = 0;
    for (const Step& step : script.steps) {
        const std::string reason
            = mPhone.watch().hasEnded() ? "the phonelet has ended before this step" : playChecked(step);
        if (reason.empty())
            continue;
        ++failures;
        mErrors << printable(script.name + ":" + std::to_string(step.line) + ": " + step.source + ": " + reason)
                << std::endl;
        if (mPhone.watch().hasEnded() || mIsStuck)
            return failures;
    }
    return failures + reportUnusedGoldens(script);
}

int ScriptRunner::reportUnusedGoldens(const Script& script)
{
    if (!mSettings.goldens)
        return 0;
    const std::vector<std::string> unused = mSettings.goldens->unused();
    for (const std::string& file : unused)
        mErrors << printable(script.name + ": no step takes " + file + "; delete it") << std::endl;
    return static_cast<int>(unused.size());
}

std::string ScriptRunner::playChecked(const Step& step)
{
    try {
        return play(step);
    } catch (const std::exception& error) {
        // A step of the phonelet's own has failed, by its name or by its key; or a file.
        return error.what();
    }
}

std::string ScriptRunner::play(const Step& step)
{
    // What is done to the telephone meets the screen that the step before has led to.
    if (acts(step) && !mPhone.finishAnswers())
        return reasonUnless(false);
    switch (step.kind) {
    case Step::Kind::Press:
        for (int key : step.keys) {
            for (int count = 0; count < step.count; ++count)
                mPhone.tap(key);
        }
        return "";
    case Step::Kind::Hold:
        mPhone.key(step.keys.front(), UGlobal::KeyPressed);
        mPhone.key(step.keys.front(), UGlobal::KeyHeld);
        return "";
    case Step::Kind::Release: mPhone.key(step.keys.front(), UGlobal::KeyReleased); return "";
    case Step::Kind::Expect:
    case Step::Kind::ExpectNot:
    case Step::Kind::ExpectScreen: return expect(step, mPhone.watch());
    case Step::Kind::ExpectDesktop: return expectOnDesktop(step);
    case Step::Kind::Advance: return reasonUnless(mPhone.advance(step.time));
    case Step::Kind::Text: mOutput << settledScreen().text << std::flush; return "";
    case Step::Kind::Show: show(); return "";
    case Step::Kind::Shot: return shoot(step);
    case Step::Kind::Custom: return reasonUnless(mPhone.callStep(step.name, step.text));
    case Step::Kind::Say: mOutput << step.text << std::endl; return "";
    }
    return "";
}

std::string ScriptRunner::shoot(const Step& step)
{
    const Snapshot shown = settledScreen();
    const Picture picture = drawPicture(shown.screen, mSettings.scale);
    writePicture(picture, step.text);
    return mSettings.goldens ? mSettings.goldens->check(step.text, picture, shown.text) : "";
}

void ScriptRunner::show()
{
    const Snapshot screen = settledScreen();
    if (mPhone.finishDesktop())
        printScreen(mPhone.desktop().snapshot(), mOutput);
    printScreen(screen, mOutput);
}

std::string ScriptRunner::expectOnDesktop(const Step& step)
{
    return mPhone.finishDesktop() ? expect(step, mPhone.desktop()) : "the telephone has no desktop, or it has gone";
}

std::string ScriptRunner::expect(const Step& step, const ScreenWatch& watch)
{
    const bool isWanted = step.kind != Step::Kind::ExpectNot;
    const auto isAsWanted = [&](const Snapshot& snapshot) {
        if (step.kind == Step::Kind::ExpectScreen)
            return snapshot.number != 0 && inOneLine(snapshot.text) == step.text;
        return snapshot.number != 0 && containsField(snapshot.text, step.text) == isWanted;
    };
    // What came before may still be on its way to the screen; look only at what follows from it.
    if (!mPhone.finishPosted() && !mPhone.watch().hasEnded())
        return reasonUnless(false);
    if (watch.waitFor(isAsWanted, mSettings.patience))
        return "";
    const std::string text = watch.snapshot().text;
    const bool isOneLine = step.kind == Step::Kind::Expect || step.kind == Step::Kind::ExpectDesktop;
    const std::string closest = isOneLine ? closestField(text, step.text) : "";
    return std::string(isWanted ? "expected" : "did not expect") + " \"" + step.text + "\", "
        + (closest.empty() ? "" : "closest is \"" + closest + "\", ")
        + (step.kind == Step::Kind::ExpectDesktop ? "the desktop has: " : "the screen has: ")
        + (text.empty() ? "no text; display.setCurrent() shows a screen, once display.show() has been called"
                        : inOneLine(text));
}

std::string ScriptRunner::reasonUnless(bool hasAnswered)
{
    if (hasAnswered)
        return "";
    mIsStuck = !mPhone.watch().hasEnded();
    return mPhone.trouble();
}

Snapshot ScriptRunner::settledScreen()
{
    if (!mPhone.finishPosted() && !mPhone.watch().hasEnded())
        throw std::runtime_error(reasonUnless(false));
    mPhone.settle();
    return mPhone.watch().snapshot();
}

}
