// What a query costs beside the least that it could cost, and a report of each
// format.
#include "bench/Floor.h"
#include "bench/Groups.h"
#include "bench/Ratios.h"
#include "bench/ReportBench.h"
#include "platform/boundary/BoundaryObserver.h"
#include "platform/hostcore/HostControl.h"
#include "platform/hostcore/Repository.h"
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/session/HostSession.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/Allocations.h"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>
#include <chrono>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <malloc.h>

namespace strake::bench {
namespace {

using tests::Allocations;

// What one query sends over the boundary; measured runs have no observer.
struct Tally {
  long logs = 0;
  long sends = 0;
  long instances = 0;
};

class TallyKeeper : public platform::BoundaryObserver {
 public:
  explicit TallyKeeper(Tally& tally) : fTally(tally) {}

  void OnLog(int /*level*/, const std::string& /*message*/) override { ++fTally.logs; }
  void OnDotSend(const platform::DotSend& /*send*/) override { ++fTally.sends; }
  void OnKestleSend(const platform::KestleSend& /*send*/) override { ++fTally.sends; }
  void OnCommit(unsigned long /*instance*/) override { ++fTally.instances; }

 private:
  Tally& fTally;
};

Tally TallyOf(const platform::ServerDescription& server, const Group& group) {
  Tally tally;
  TallyKeeper keeper(tally);
  platform::HostSession session(server, &keeper);
  session.Attach(&StrakeModuleEntry);
  session.Query(group.classes);
  return tally;
}

// A namespace to fill and the class handles of the request, new for each run so
// that what earlier runs stored costs nothing.
struct Target {
  explicit Target(const Group& group)
      : repository(boost::make_shared<platform::Repository>()), cimNamespace(repository) {
    for (const std::string& name : group.classes) {
      classes.push_back(repository->RequestedClass(name));
    }
  }

  boost::shared_ptr<platform::Repository> repository;
  boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace;
  std::vector<boost::shared_ptr<NVELKZEV20::ICIMClass>> classes;
};

template <typename Work>
void Measure(benchmark::State& state, const Group& group, const Tally& tally, const Work& work) {
  using Clock = std::chrono::steady_clock;
  long allocations = 0;
  long bytes = 0;
  for (auto _ : state) {
    Target target(group);
    Allocations::Count();
    const auto begin = Clock::now();
    work(target);
    const std::chrono::duration<double> spent = Clock::now() - begin;
    allocations = Allocations::Made();
    bytes = Allocations::MadeBytes();
    state.SetIterationTime(spent.count());
  }
  state.counters["allocs"] = static_cast<double>(allocations);
  state.counters["bytes"] = static_cast<double>(bytes);
  state.counters["logs"] = static_cast<double>(tally.logs);
  state.counters["sends"] = static_cast<double>(tally.sends);
  state.counters["instances"] = static_cast<double>(tally.instances);
}

void RunQuery(benchmark::State& state, const platform::ServerDescription& server,
              const Group& group, bool logs) {
  Tally tally = TallyOf(server, group);
  if (!logs) tally.logs = 0;
  platform::SetProviderGiven(logs);
  platform::HostSession session(server);
  session.Attach(&StrakeModuleEntry);
  platform::SetProviderGiven(true);
  auto& plugin = dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks&>(session.Plugin());
  Measure(state, group, tally,
          [&plugin](const Target& target) { plugin.Query(target.cimNamespace, target.classes); });
}

template <Arguments How>
void RunFloor(benchmark::State& state, const platform::ServerDescription& server,
              const Group& group, bool logs) {
  Tally tally = TallyOf(server, group);
  if (!logs) tally.logs = 0;
  Floor floor(CallsOf(RecordTrace(server, group), logs), How);
  const platform::HostSession session(server);
  Measure(state, group, tally,
          [&floor](const Target& target) { floor.Replay(target.cimNamespace, target.classes); });
}

void RunScale(benchmark::State& state, int sps) {
  const Group& group = GroupNamed("sensors_orlo");
  platform::ServerDescription server = ServerOf(group);
  server.sp.count = sps;
  server.sp.instances.assign(static_cast<std::size_t>(sps), server.sp.instances.front());
  RunQuery(state, server, group, true);
  state.counters["allocs_per_sp"] = state.counters["allocs"] / sps;
}

// A fixed number of iterations, for instruction counts; 0: as many as the time
// allows.
benchmark::IterationCount FixedIterations() {
  const char* const text = std::getenv("STRAKE_BENCH_ITERATIONS");
  return text == nullptr ? 0 : std::strtol(text, nullptr, 10);
}

void Configure(benchmark::internal::Benchmark& measured) {
  measured.UseManualTime()->Unit(benchmark::kMicrosecond);
  if (FixedIterations() > 0) measured.Iterations(FixedIterations());
}

void Register() {
  for (const Group& group : Groups()) {
    const platform::ServerDescription server = ServerOf(group);
    const std::string name = group.name;
    const auto add = [&](const std::string& kind, auto run, bool logs) {
      Configure(*benchmark::RegisterBenchmark((kind + "/" + name).c_str(),
                                              [server, &group, run, logs](benchmark::State& state) {
                                                run(state, server, group, logs);
                                              }));
    };
    add("Query", RunQuery, true);
    add("Floor", RunFloor<Arguments::Ready>, true);
    add("MadeFloor", RunFloor<Arguments::Made>, true);
    add("Silent", RunQuery, false);
    add("SilentFloor", RunFloor<Arguments::Ready>, false);
    add("SilentMadeFloor", RunFloor<Arguments::Made>, false);
  }
  for (const int sps : {1, 4, 16, 64, 255}) {
    Configure(
        *benchmark::RegisterBenchmark(("Scale/" + std::to_string(sps)).c_str(),
                                      [sps](benchmark::State& state) { RunScale(state, sps); }));
  }
  RegisterReports(Configure);
}

// Keeps freed memory in the process: otherwise runs that fill the host with
// thousands of instances measure how fast the kernel hands out pages.
void KeepMemory() {
  constexpr int kBytes = 1 << 30;
  mallopt(M_TRIM_THRESHOLD, kBytes);
  mallopt(M_MMAP_THRESHOLD, kBytes);
}

}  // namespace
}  // namespace strake::bench

int main(int argc, char** argv) {
  try {
    strake::bench::KeepMemory();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    strake::bench::Register();
    strake::bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatios(std::cout);
    benchmark::Shutdown();
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "strake_bench: " << error.what() << '\n';
    return 1;
  }
}
