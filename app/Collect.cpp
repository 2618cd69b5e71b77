#include "app/Collect.h"

#include "app/Errors.h"
#include "app/ForwardingObserver.h"
#include "app/LimitsFile.h"
#include "app/Messages.h"
#include "app/ModulePath.h"
#include "app/NearestName.h"
#include "app/Progress.h"
#include "app/QueryPlan.h"
#include "app/ReportOutput.h"
#include "app/RunQueries.h"
#include "app/Server.h"
#include "app/SharedFiles.h"
#include "app/Trail.h"
#include "cim/Catalogue.h"
#include "findings/CollectionWatch.h"
#include "os/CommandFolder.h"
#include "os/OutputFile.h"
#include "os/Terminal.h"
#include "platform/session/HostSession.h"
#include "platform/session/PluginModule.h"
#include "report/ClockOffset.h"
#include "report/Report.h"

#include <chrono>
#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace strake::app {
namespace {

void WarnOfUnknownClasses(const std::vector<ClassNames>& queries) {
  std::vector<std::string_view> known;
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    known.push_back(one.name);
  }
  std::set<std::string> told;
  for (const ClassNames& query : queries) {
    for (const std::string& name : query) {
      if (!IsKnownClass(name) && told.insert(name).second) {
        TellWarning("--query: no class of the schema is called '" + name + "'" +
                    DidYouMean(name, known));
      }
    }
  }
}

// Null when there is nothing that could show it, or nobody who wants it.
std::unique_ptr<Progress> MakeProgress(const CollectOptions& options, std::size_t queries) {
  if (options.quiet || !os::StandardErrorCanErase()) {
    return nullptr;
  }
  return std::make_unique<Progress>(queries,
                                    Progress::Means{Progress::Clock::now, os::WriteStandardError});
}

// What the host's clock says: the description's text, or the time.
std::chrono::sys_seconds HostTime(const platform::HostSettings& host,
                                  std::chrono::sys_seconds now) {
  return host.localTime ? report::MomentOf(host.localTime->ToString()).value_or(now) : now;
}

int StatusOf(const report::Report& report, const CollectOptions& options) {
  const std::span<const report::Finding> findings = report.Findings();
  const bool isGrave =
      options.failOn && !findings.empty() && findings.front().severity >= *options.failOn;
  return isGrave ? kExitFindings : kExitDone;
}

}  // namespace

int Collect(const CollectOptions& options) {
  RefuseSharedFiles(options);
  const std::optional<report::Limits> limits =
      options.limits ? std::optional(ReadLimits(*options.limits)) : std::nullopt;
  const Server server =
      options.server ? ReadServer(*options.server) : LoadBuiltInServer(options.demo);
  const std::vector<ClassNames> queries = QueriesOf(options);
  const platform::PluginModule module(options.plugin ? *options.plugin
                                                     : FindModule(os::CommandFolder()));

  // All files are opened before the first query: a run whose results could not
  // be kept does not begin.
  const std::unique_ptr<os::OutputFile> output =
      OpenOutput(GoesToStandardOutput(options) ? std::nullopt : options.output,
                 options.showSecrets ? os::Privacy::Owner : os::Privacy::Usual);
  const std::unique_ptr<Progress> progress = MakeProgress(options, queries.size());
  Trail trail(options, progress.get());
  if (!options.quiet) {
    WarnOfUnknownClasses(queries);
  }
  findings::CollectionWatch watch;
  ForwardingObserver observers({trail.Observer(), progress.get(), &watch});

  const auto begin = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  report::Collected collected;
  collected.facts = {.server = server.facts,
                     .version = STRAKE_VERSION,
                     .collectedAt = begin,
                     .queries = queries.size(),
                     .classes = ClassesOf(queries),
                     .hostTime = HostTime(server.description.host, begin)};
  platform::HostSession session(server.description, &observers, trail.Sink());
  Attach(session, module.Entry());
  try {
    RunQueries(session, queries);
  } catch (const RunError&) {
    trail.Complete();  // it holds what happened
    throw;
  }
  trail.Complete();
  if (progress) {
    progress->Erase();
  }

  collected.instances = session.Namespace()->TakeCommitted();
  watch.AddTo(collected);
  report::Select(collected, options.selection);
  const report::Report report(
      std::move(collected), options.showSecrets ? report::Secrets::Shown : report::Secrets::Masked,
      limits);
  WriteReport(report, options, output.get());
  if (options.selection.sensor && report.Sensors().empty() && !options.quiet) {
    TellWarning("--sensor: no sensor is called '" + *options.selection.sensor + "'");
  }
  return StatusOf(report, options);
}

}  // namespace strake::app
