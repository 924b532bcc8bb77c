#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

void registerFrameBenchmarks(const std::string& mode);
void registerDeliveryBenchmarks(const std::string& mode);
void registerScreenBenchmarks(const std::string& mode);
void registerMemoryBenchmarks(const std::string& mode);
void registerWidgetBenchmarks(const std::string& mode);
void registerSearchBenchmarks(const std::string& mode);
void registerTelephoneBenchmarks(const std::string& mode);

/// Registers a benchmark that measures its operations itself: `measure` returns nanoseconds for each operation, of
/// which `operations` make a round. Each round is one iteration, so that the report gets the median of the rounds.
void registerRounds(const std::string& mode, const std::string& name, long operations,
    const std::function<double()>& measure, int rounds = 7);

/// Registers one whose time is compared with the yardstick; on one core the ratio should not exceed `allowed`.
void registerRatio(const std::string& mode, const std::string& name, long operations, double allowed,
    const std::function<double()>& measure);
