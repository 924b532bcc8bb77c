#include "Benchmarks.h"
#include "Report.h"

#include <benchmark/benchmark.h>

/// Runs every benchmark on all cores and on one, and prints the ratios to the yardstick of the same run.
int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    for (const char* mode : {"one core", "all cores"}) {
        registerFrameBenchmarks(mode);
        registerDeliveryBenchmarks(mode);
        registerScreenBenchmarks(mode);
        registerMemoryBenchmarks(mode);
        registerWidgetBenchmarks(mode);
        registerSearchBenchmarks(mode);
        registerTelephoneBenchmarks(mode);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    Report::print();
    return 0;
}
