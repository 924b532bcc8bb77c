#include "RecordFile.h"

#include "ScreenText.h"
#include "UsageError.h"

#include <sstream>

namespace Simulator {

namespace {

std::ofstream opened(const std::string& file)
{
    std::ofstream output(file);
    if (!output)
        throw UsageError("cannot write the recording " + file);
    return output;
}

class ScriptFile : public RecordFile {
public:
    ScriptFile(const std::string& file, const std::string& program)
        : mOutput(opened(file))
    {
        mOutput << "# Recorded; play it with: " << program << " --script " << file << std::endl;
    }

    void press(const std::string& key) override { mOutput << "press " << key << std::endl; }
    void hold(const std::string& key) override { mOutput << "hold " << key << std::endl; }
    void release(const std::string& key) override { mOutput << "release " << key << std::endl; }
    void advance(std::chrono::milliseconds time) override
    {
        mOutput << "advance " << time.count() << "ms" << std::endl;
    }
    void callStep(const std::string& name, const std::string& argument) override
    {
        mOutput << name << (argument.empty() ? "" : " ") << argument << std::endl;
    }
    void expectLine(const std::string& line, bool isThere) override
    {
        mOutput << (isThere ? "expect " : "expect-not ") << line << std::endl;
    }
    void expect(const std::string& screenText) override
    {
        mOutput << "expect-screen " << inOneLine(screenText) << std::endl;
    }

private:
    std::ofstream mOutput;
};

/// A text as Python takes it, on one line.
std::string quoted(const std::string& text)
{
    std::ostringstream result;
    result << '"';
    for (const char character : text) {
        if (character == '"' || character == '\\')
            result << '\\' << character;
        else if (character == '\n')
            result << "\\n";
        else if (character == '\r')
            result << "\\r";
        else
            result << character;
    }
    result << '"';
    return result.str();
}

class PytestFile : public RecordFile {
public:
    PytestFile(const std::string& file, const std::string& program)
        : mOutput(opened(file))
    {
        mOutput << "# Recorded; play it with: pytest " << file << "\n\n"
                << "import pytest\nfrom phonekit import expect\n\n\n"
                << "@pytest.mark.phone(" << quoted(program) << ")\ndef test_recorded(phone):" << std::endl;
        mOutput << "    assert phone.is_running" << std::endl;
    }

    void press(const std::string& key) override { call("phone.press", quoted(key)); }
    void hold(const std::string& key) override { call("phone.hold", quoted(key)); }
    void release(const std::string& key) override { call("phone.release", quoted(key)); }
    void advance(std::chrono::milliseconds time) override
    {
        call("phone.advance", std::to_string(time.count()) + " / 1000");
    }
    void callStep(const std::string& name, const std::string& argument) override
    {
        call("phone.step", quoted(name) + (argument.empty() ? "" : ", " + quoted(argument)));
    }
    void expectLine(const std::string& line, bool isThere) override
    {
        call(isThere ? "expect(phone).to_show" : "expect(phone).not_to_show", quoted(line));
    }
    void expect(const std::string& screenText) override
    {
        mOutput << "    expect(phone).to_show_exactly(";
        std::istringstream lines(screenText);
        for (std::string line; std::getline(lines, line);)
            mOutput << "\n        " << quoted(line + "\n");
        mOutput << (screenText.empty() ? "\"\")" : "\n    )") << std::endl;
    }

private:
    void call(const char* function, const std::string& arguments)
    {
        mOutput << "    " << function << "(" << arguments << ")" << std::endl;
    }

    std::ofstream mOutput;
};

}

std::unique_ptr<RecordFile> RecordFile::create(const std::string& file, const std::string& program)
{
    if (file.ends_with(".py"))
        return std::make_unique<PytestFile>(file, program);
    return std::make_unique<ScriptFile>(file, program);
}

}
