// What a run leaves beside its report: the trace and the log.
#pragma once

#include "app/CommandLine.h"
#include "app/LogWriter.h"
#include "os/OutputFile.h"
#include "os/OutputStream.h"
#include "platform/boundary/TraceWriter.h"
#include "platform/hostcore/HostControl.h"

#include <memory>
#include <ostream>

namespace strake::app {

// Null without a name.
std::unique_ptr<os::OutputFile> OpenOutput(const std::optional<std::filesystem::path>& name,
                                           os::Privacy privacy,
                                           os::OnSignal onSignal = os::OnSignal::Discard);

class Trail {
 public:
  // Opens the files; throws os::OutputError. A signal completes them. Without a
  // log file the last argument takes the lines.
  Trail(const CollectOptions& options, TakeLine showLine);

  // Null without a trace.
  [[nodiscard]] platform::BoundaryObserver* Observer() const { return fTrace.get(); }
  [[nodiscard]] platform::LogSink Sink();

  // Throws os::OutputError: one of them could not be written.
  void Complete();

 private:
  std::unique_ptr<os::OutputFile> fTraceFile;
  std::unique_ptr<os::OutputFile> fLogFile;
  LogWriter fLog;
  std::unique_ptr<os::OutputStreamBuffer> fTraceBuffer;
  std::unique_ptr<std::ostream> fTraceStream;
  std::unique_ptr<platform::TraceWriter> fTrace;
};

}  // namespace strake::app
