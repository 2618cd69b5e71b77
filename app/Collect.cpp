#include "app/Collect.h"

#include "app/Errors.h"
#include "app/JsonReport.h"
#include "app/LogWriter.h"
#include "app/ModulePath.h"
#include "app/OutputFile.h"
#include "app/OutputStream.h"
#include "app/QueryPlan.h"
#include "app/Report.h"
#include "app/Server.h"
#include "app/SharedFiles.h"
#include "app/TableReport.h"
#include "app/Terminal.h"
#include "platform/boundary/TraceWriter.h"
#include "platform/session/HostSession.h"
#include "platform/session/PluginModule.h"

#include <exception>
#include <memory>
#include <ostream>

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

std::unique_ptr<OutputFile> Open(const std::optional<std::filesystem::path>& name,
                                 Privacy privacy) {
  return name ? std::make_unique<OutputFile>(*name, privacy) : nullptr;
}

// What the run leaves beside its report: the trace and the log.
class Trail {
 public:
  explicit Trail(const CollectOptions& options)
      : fTraceFile(Open(options.trace, Privacy::Owner)),
        fLogFile(Open(options.log, Privacy::Owner)),
        fLog(fLogFile.get(), options.logLevel) {
    if (fTraceFile) {
      fTraceBuffer = std::make_unique<OutputStreamBuffer>(*fTraceFile);
      fTraceStream = std::make_unique<std::ostream>(fTraceBuffer.get());
      fTrace = std::make_unique<platform::TraceWriter>(*fTraceStream);
    }
  }

  [[nodiscard]] platform::BoundaryObserver* Observer() const { return fTrace.get(); }

  [[nodiscard]] platform::LogSink Sink() {
    return [this](int level, const std::string& message) { fLog.Write(level, message); };
  }

  void Complete() {
    if (fTraceFile) {
      fTraceFile->Complete();
    }
    if (fLogFile) {
      fLogFile->Complete();
    }
  }

 private:
  std::unique_ptr<OutputFile> fTraceFile;
  std::unique_ptr<OutputFile> fLogFile;
  LogWriter fLog;
  std::unique_ptr<OutputStreamBuffer> fTraceBuffer;
  std::unique_ptr<std::ostream> fTraceStream;
  std::unique_ptr<platform::TraceWriter> fTrace;
};

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

void WriteReport(const Report& report, const CollectOptions& options, OutputFile* file) {
  const bool isJson = options.format == ReportFormat::Json;
  const Colour colour =
      file == nullptr && StandardOutputShowsColour() ? Colour::Headings : Colour::Never;
  const std::string text = isJson ? JsonReport(report) : TableReport(report, colour);
  if (file == nullptr) {
    WriteStandardOutput(text);
  } else {
    file->Write(text);
    file->Complete();
  }
  if (isJson) {
    for (const platform::EqualKeys& equal : report.equalKeys) {
      WriteStandardError("strake: warning: " + EqualKeysWarning(equal) + "\n");
    }
  }
}

}  // namespace

void Collect(const CollectOptions& options) {
  RefuseSharedFiles(options);
  const Server server =
      options.server ? ReadServer(*options.server) : LoadBuiltInServer(options.demo);
  const std::vector<ClassNames> queries = QueriesOf(options);
  const platform::PluginModule module(options.plugin ? *options.plugin
                                                     : FindModule(CommandFolder()));

  // All files are opened before the first query: a run whose results could not
  // be kept does not begin.
  const std::unique_ptr<OutputFile> output =
      Open(options.output, options.showSecrets ? Privacy::Owner : Privacy::Usual);
  Trail trail(options);

  platform::HostSession session(server.description, trail.Observer(), trail.Sink());
  RunStep("attaching", [&] { session.Attach(module.Entry()); });
  try {
    RunQueries(session, queries);
  } catch (const RunError&) {
    trail.Complete();  // it holds what happened
    throw;
  }
  trail.Complete();

  Report report;
  report.server = server.facts;
  report.instances = session.Instances().Committed();
  report.equalKeys = session.Instances().FindEqualKeys();
  report.queries = queries.size();
  report.showSecrets = options.showSecrets;
  WriteReport(report, options, output.get());
}

}  // namespace strake::app
