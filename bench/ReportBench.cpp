#include "bench/ReportBench.h"

#include "bench/Groups.h"
#include "findings/CollectionWatch.h"
#include "platform/session/HostSession.h"
#include "plugin/frame/ModuleEntry.h"
#include "report/Formats.h"
#include "report/Report.h"
#include "tests/support/WholeCollection.h"

#include <chrono>
#include <memory>
#include <string>

namespace strake::bench {
namespace {

using SharedReport = std::shared_ptr<const report::Report>;

std::vector<const cim::SchemaClass*> ClassesOf(const std::vector<std::string>& names) {
  std::vector<const cim::SchemaClass*> classes;
  for (const std::string& name : names) classes.push_back(cim::FindSchemaClass(name));
  return classes;
}

// Of as many service processors as there are, those of the server again and again.
SharedReport Collect(int sps, const std::vector<std::vector<std::string>>& queries) {
  platform::ServerDescription server = ServerOf(GroupNamed("system"));
  const auto cards = server.sp.instances;
  server.sp.instances.clear();
  for (std::size_t i = 0; i < static_cast<std::size_t>(sps); ++i) {
    server.sp.instances.push_back(cards.at(i % cards.size()));
  }
  server.sp.count = sps;
  findings::CollectionWatch watch;
  platform::HostSession session(server, &watch);
  session.Attach(&StrakeModuleEntry);
  report::Collected collected;
  collected.facts.server = {"demo-orlo", server.description, "orlo"};
  collected.facts.version = "1.0.0";
  collected.facts.queries = queries.size();
  for (const auto& classes : queries) {
    session.Query(classes);
    for (const cim::SchemaClass* const one : ClassesOf(classes)) {
      collected.facts.classes.push_back(one);
    }
  }
  collected.instances = session.Namespace()->TakeCommitted();
  watch.AddTo(collected);
  return std::make_shared<const report::Report>(std::move(collected), report::Secrets::Masked);
}

void RunWriter(benchmark::State& state, const report::Format& format,
               const report::Report& report) {
  using Clock = std::chrono::steady_clock;
  std::size_t bytes = 0;
  for (auto _ : state) {
    bytes = 0;
    const auto begin = Clock::now();
    format.write(report, {}, [&bytes](std::string_view text) {
      benchmark::DoNotOptimize(text.data());
      bytes += text.size();
    });
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
  }
  state.counters["instances"] = static_cast<double>(report.Instances().size());
  state.counters["bytes"] = static_cast<double>(bytes);
}

}  // namespace

void RegisterReports(const std::function<void(benchmark::internal::Benchmark&)>& configure) {
  constexpr int kDemo = 2;
  constexpr int kMany = 206;  // 9,991 instances
  for (const int sps : {kDemo, kMany}) {
    const SharedReport whole = Collect(sps, tests::WholeCollectionQueries());
    const SharedReport sensors = Collect(sps, {GroupNamed("sensors_orlo").classes});
    for (const report::Format& format : report::Formats()) {
      const SharedReport one = format.classes == report::Classes::ExactlyOne ? sensors : whole;
      const std::string name =
          "Report/" + std::string(format.name) + "/" + std::to_string(one->Instances().size());
      configure(*benchmark::RegisterBenchmark(
          name.c_str(),
          [one, &format](benchmark::State& state) { RunWriter(state, format, *one); }));
    }
  }
}

}  // namespace strake::bench
