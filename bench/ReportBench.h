// What writing a report costs: each format, of a server and of a hundred times as
// many service processors.
#pragma once

#include <benchmark/benchmark.h>
#include <functional>

namespace strake::bench {

// Registers Report/FORMAT/INSTANCES, and hands each to `configure`, for manual time.
void RegisterReports(const std::function<void(benchmark::internal::Benchmark&)>& configure);

}  // namespace strake::bench
