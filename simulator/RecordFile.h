#pragma once

#include <chrono>
#include <fstream>
#include <memory>
#include <string>

namespace Simulator {

/// The file of a recorded session: each operation adds a step, which is in the file when it returns.
class RecordFile {
public:
    /// A test for pytest if the name ends with ".py", else a script. `program` is how the recorded program was started.
    /// Throws UsageError for a file that can't be written.
    static std::unique_ptr<RecordFile> create(const std::string& file, const std::string& program);

    virtual ~RecordFile() = default;

    virtual void press(const std::string& key) = 0;
    virtual void hold(const std::string& key) = 0;
    virtual void release(const std::string& key) = 0;
    virtual void advance(std::chrono::milliseconds time) = 0;
    virtual void callStep(const std::string& name, const std::string& argument) = 0;

    /// A line of the screen text that is to be there, or not to be there.
    virtual void expectLine(const std::string& line, bool isThere) = 0;

    /// The whole screen text that is to be there now.
    virtual void expect(const std::string& screenText) = 0;
};

}
