#pragma once

#include <string>

/// What the benchmarks have found, printed at the end as a table of ratios.
namespace Report {

constexpr double NoLimit = -1;

/// The yardstick of a run, in nanoseconds.
void setYardstick(const std::string& mode, double nanoseconds);

/// A time for each operation, compared with the yardstick of the same mode; `limit` is the ratio that it should not
/// exceed, or NoLimit.
void addRatio(const std::string& mode, const std::string& name, double nanoseconds, double limit);

/// A figure of its own, with the value that it should not exceed, or NoLimit.
void addFigure(const std::string& mode, const std::string& name, double value, const std::string& unit, double limit);

/// Prints everything, the median of what was added repeatedly.
void print();

}
