#include "app/Collect.h"

#include "app/Errors.h"
#include "app/ForwardingObserver.h"
#include "app/Inputs.h"
#include "app/Messages.h"
#include "app/Progress.h"
#include "app/ReportOutput.h"
#include "app/RunQueries.h"
#include "app/SharedFiles.h"
#include "app/Trail.h"
#include "findings/CollectionWatch.h"
#include "os/OutputFile.h"
#include "os/Terminal.h"
#include "platform/session/HostSession.h"

#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

namespace strake::app {
namespace {

// Null when there is nothing that could show it, or nobody who wants it.
std::unique_ptr<Progress> MakeProgress(const CollectOptions& options, std::size_t queries) {
  if (options.quiet || !os::StandardErrorCanErase()) {
    return nullptr;
  }
  return std::make_unique<Progress>(queries,
                                    Progress::Means{Progress::Clock::now, os::WriteStandardError});
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
  const Inputs inputs = ReadInputs(options);

  // All files are opened before the first query: a run whose results could not
  // be kept does not begin.
  const std::unique_ptr<os::OutputFile> output =
      OpenOutput(GoesToStandardOutput(options) ? std::nullopt : options.output,
                 options.showSecrets ? os::Privacy::Owner : os::Privacy::Usual);
  const std::unique_ptr<Progress> progress = MakeProgress(options, inputs.queries.size());
  Trail trail(options, [&progress](std::string_view line) {
    if (progress) {
      progress->Erase();
    }
    os::WriteStandardError(line);
  });
  if (!options.quiet) {
    WarnOfUnknownClasses(inputs.queries);
  }
  findings::CollectionWatch watch;
  ForwardingObserver observers({trail.Observer(), progress.get(), &watch});

  const auto begin = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  report::Collected collected;
  collected.facts = FactsOf(inputs, begin);
  platform::HostSession session(inputs.server.description, &observers, trail.Sink());
  Attach(session, inputs.module.Entry());
  try {
    Initialize(session);
    RunQueries(session, inputs.queries);
    Finish(session);
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
      inputs.limits);
  WriteReport(report, options, output.get());
  if (const auto warning = NoSuchSensor(report, options)) {
    TellWarning(*warning);
  }
  return StatusOf(report, options);
}

}  // namespace strake::app
