#include "app/Trail.h"

#include <exception>
#include <utility>

namespace strake::app {
namespace {

std::unique_ptr<os::OutputFile> OpenPart(const std::optional<std::filesystem::path>& name) {
  return OpenOutput(name, os::Privacy::Owner, os::OnSignal::Complete);
}

}  // namespace

std::unique_ptr<os::OutputFile> OpenOutput(const std::optional<std::filesystem::path>& name,
                                           os::Privacy privacy, os::OnSignal onSignal) {
  return name ? std::make_unique<os::OutputFile>(*name, privacy, onSignal) : nullptr;
}

Trail::Trail(const CollectOptions& options, TakeLine showLine)
    : fTraceFile(OpenPart(options.trace)),
      fLogFile(OpenPart(options.log)),
      fLog(fLogFile ? [file = fLogFile.get()](std::string_view line) { file->Write(line); }
                    : std::move(showLine),
           options.logLevel) {
  if (fTraceFile) {
    fTraceBuffer = std::make_unique<os::OutputStreamBuffer>(*fTraceFile);
    fTraceStream = std::make_unique<std::ostream>(fTraceBuffer.get());
    fTrace = std::make_unique<platform::TraceWriter>(*fTraceStream);
  }
}

platform::LogSink Trail::Sink() {
  return [this](int level, const std::string& message) { fLog.Write(level, message); };
}

void Trail::Complete() {
  std::exception_ptr failure;
  for (const auto& file : {fTraceFile.get(), fLogFile.get()}) {
    try {
      if (file != nullptr) {
        file->Complete();
      }
    } catch (const os::OutputError&) {
      failure = failure ? failure : std::current_exception();
    }
  }
  if (failure) {
    std::rethrow_exception(failure);
  }
}

}  // namespace strake::app
