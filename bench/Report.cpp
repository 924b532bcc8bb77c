#include "Report.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

namespace Report {

namespace {

struct Entry {
    std::string mode;
    std::string name;
    std::string unit;
    bool isRatio; // a time, to be compared with the yardstick
    double limit = NoLimit;
    std::vector<double> values;
};

std::vector<Entry> gEntries;
std::map<std::string, std::vector<double>> gYardsticks;

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void add(const Entry& description, double value)
{
    auto found = std::find_if(gEntries.begin(), gEntries.end(),
        [&](const Entry& entry) { return entry.mode == description.mode && entry.name == description.name; });
    if (found == gEntries.end())
        found = gEntries.insert(gEntries.end(), description);
    found->values.push_back(value);
}

void printLimit(double value, double limit)
{
    if (limit >= 0)
        std::printf("   at most %-8g %s", limit, value <= limit ? "met" : "MISSED");
    std::printf("\n");
}

}

void setYardstick(const std::string& mode, double nanoseconds)
{
    gYardsticks[mode].push_back(nanoseconds);
}

void addRatio(const std::string& mode, const std::string& name, double nanoseconds, double limit)
{
    add({mode, name, "ns", true, limit, {}}, nanoseconds);
}

void addFigure(const std::string& mode, const std::string& name, double value, const std::string& unit, double limit)
{
    add({mode, name, unit, false, limit, {}}, value);
}

void print()
{
    for (const auto& [mode, values] : gYardsticks) {
        const double yardstick = median(values);
        std::printf("\n%s: yardstick, a raw futex ping-pong: %.0f ns\n", mode.c_str(), yardstick);
        for (const Entry& entry : gEntries) {
            if (entry.mode != mode)
                continue;
            const double value = median(entry.values);
            if (entry.isRatio) {
                std::printf("  %-56s %10.1f ns   ratio %7.4f", entry.name.c_str(), value, value / yardstick);
                printLimit(value / yardstick, entry.limit);
            } else {
                std::printf("  %-56s %10.2f %s", entry.name.c_str(), value, entry.unit.c_str());
                printLimit(value, entry.limit);
            }
        }
    }
}

}
