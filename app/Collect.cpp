#include "app/Collect.h"

#include "app/Errors.h"
#include "app/ForwardingObserver.h"
#include "app/Messages.h"
#include "app/ModulePath.h"
#include "app/NearestName.h"
#include "app/Progress.h"
#include "app/QueryPlan.h"
#include "app/Server.h"
#include "app/SharedFiles.h"
#include "app/Trail.h"
#include "cim/Catalogue.h"
#include "os/CommandFolder.h"
#include "os/OutputFile.h"
#include "os/Terminal.h"
#include "platform/session/HostSession.h"
#include "platform/session/PluginModule.h"
#include "report/Formats.h"

#include <chrono>
#include <exception>
#include <memory>
#include <set>
#include <utility>

namespace strake::app {
namespace {

std::vector<ClassNames> QueriesOf(const CollectOptions& options) {
  if (options.queries.empty()) {
    return PlanQueries(options.classes);
  }
  std::vector<ClassNames> queries;
  for (const std::string& list : options.queries) {
    queries.push_back(SplitClassList(list));
  }
  return queries;
}

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

// Runs a step in the plug-in. Its exceptions are turned into the command's own
// here, while the module is loaded: their types can be the module's.
template <typename Step>
void RunStep(const std::string& name, const Step& step) {
  try {
    step();
  } catch (const platform::SessionError& error) {
    throw RunError(error.what());
  } catch (const std::exception& error) {
    throw RunError(name + " ended with an exception: " + error.what());
  } catch (...) {
    throw RunError(name + " ended with an exception that does not say what it is");
  }
}

void RunQueries(platform::HostSession& session, const std::vector<ClassNames>& queries) {
  RunStep("Initialize", [&session] { session.Initialize(); });
  for (std::size_t index = 0; index < queries.size(); ++index) {
    RunStep("query " + std::to_string(index + 1),
            [&session, &query = queries[index]] { session.Query(query); });
  }
  RunStep("Deinitialize", [&session] { session.Deinitialize(); });
  RunStep("detaching", [&session] { session.Detach(); });
}

// Writes a report in large pieces: a writer hands over small ones.
void WriteToStandardOutput(const report::Report& report, const report::Format& format) {
  constexpr std::size_t kPiece = 65536;
  const report::Colour colour =
      os::StandardOutputShowsColour() ? report::Colour::Headings : report::Colour::Never;
  std::string pending;
  format.write(report, {.colour = colour}, [&pending](std::string_view text) {
    pending += text;
    if (pending.size() >= kPiece) {
      os::WriteStandardOutput(pending);
      pending.clear();
    }
  });
  os::WriteStandardOutput(pending);
}

// Those that somebody has to look at.
void TellFindings(const report::Report& report) {
  for (const report::Finding& finding : report.Findings()) {
    if (finding.severity != report::Severity::Info) {
      TellWarning(finding.text);
    }
  }
}

void WriteReport(const report::Report& report, const CollectOptions& options,
                 os::OutputFile* file) {
  const report::Format& format = *options.format;
  if (file == nullptr) {
    WriteToStandardOutput(report, format);
  } else {
    format.write(report, {}, [file](std::string_view text) { file->Write(text); });
    file->Complete();
  }
  if (format.findings == report::FindingsGo::ToStandardError && !options.quiet) {
    TellFindings(report);
  }
}

}  // namespace

void Collect(const CollectOptions& options) {
  RefuseSharedFiles(options);
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
  ForwardingObserver observers({trail.Observer(), progress.get()});

  const auto begin = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  platform::HostSession session(server.description, &observers, trail.Sink());
  RunStep("attaching", [&] { session.Attach(module.Entry()); });
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

  report::Collected collected;
  collected.facts = {.server = server.facts,
                     .version = STRAKE_VERSION,
                     .collectedAt = begin,
                     .queries = queries.size()};
  collected.instances = session.Namespace()->TakeCommitted();
  const report::Report report(
      std::move(collected), options.showSecrets ? report::Secrets::Shown : report::Secrets::Masked);
  WriteReport(report, options, output.get());
}

}  // namespace strake::app
