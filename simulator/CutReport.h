#pragma once

#include <UString.h>

#include <map>
#include <ostream>
#include <string>

namespace Simulator {

/// Collects the texts that had no room on the glass while it lives, for those who write and translate them.
/// Threads: GUI thread.
class CutReport {
public:
    CutReport();
    ~CutReport();
    CutReport(const CutReport&) = delete;
    CutReport& operator=(const CutReport&) = delete;

    /// A line for each text, with how much of it was seen where there was least room.
    void print(std::ostream& output) const;

private:
    std::map<std::string, int> mColumns; // by text, in UTF-8
};

}
