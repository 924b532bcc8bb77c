#include "CutReport.h"

#include "Printable.h"

#include <TextCuts.h>

#include <algorithm>

namespace Simulator {

CutReport::CutReport()
{
    TextCuts::watch([this](const UString& text, int columns) {
        const auto [entry, isNew] = mColumns.emplace(text.toUTF8(), columns);
        entry->second = std::min(entry->second, columns);
    });
}

CutReport::~CutReport()
{
    TextCuts::watch(nullptr);
}

void CutReport::print(std::ostream& output) const
{
    for (const auto& [text, columns] : mColumns)
        output << "cut after " << columns << " characters: " << printable(text) << "\n";
    output << std::flush;
}

}
