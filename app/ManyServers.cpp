#include "app/ManyServers.h"

#include "app/Errors.h"
#include "app/LimitsFile.h"
#include "app/ModulePath.h"
#include "app/ServerProcess.h"
#include "app/SharedFiles.h"
#include "app/Trail.h"
#include "os/CommandFolder.h"
#include "os/OutputFile.h"
#include "report/Writer.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace strake::app {
namespace {

using Clock = ServerProcess::Clock;

// What every process would refuse is refused once.
void RefuseForAll(const CollectOptions& options) {
  RefuseSharedFiles(options);
  if (options.limits) {
    static_cast<void>(ReadLimits(*options.limits));
  }
  if (!options.plugin) {
    static_cast<void>(FindModule(os::CommandFolder()));
  }
}

// So many servers at once, written in their order.
class Collection {
 public:
  Collection(const ManyServers& many, report::Sink sink)
      : fSink(std::move(sink)), fJobs(many.jobs) {
    const std::filesystem::path command = os::CommandFile();
    for (const std::filesystem::path& server : many.servers) {
      fServers.push_back(std::make_unique<ServerProcess>(
          ServerProcess::Plan{command, server, STRAKE_VERSION, many.words, many.timeout}));
    }
  }

  // Gives the exit status.
  int Run() {
    while (fWritten < fServers.size()) {
      StartMore();
      WriteWhatIsDue();
      if (!fRunning.empty()) {
        ServerProcess::Wait(fRunning);
        std::erase_if(fRunning, [](const ServerProcess* one) { return one->HasEnded(); });
      }
    }
    return fStatus;
  }

 private:
  void StartMore() {
    while (fRunning.size() < fJobs && fStarted < fServers.size()) {
      ServerProcess& one = *fServers[fStarted];
      if (!one.Start(!fRunning.empty())) {
        return;
      }
      ++fStarted;
      if (!one.HasEnded()) {
        fRunning.push_back(&one);
      }
    }
  }

  void WriteWhatIsDue() {
    const Clock::time_point before = Clock::now();
    const std::size_t written = fWritten;
    for (; fWritten < fStarted && fServers[fWritten]->HasEnded(); ++fWritten) {
      std::unique_ptr<ServerProcess>& one = fServers[fWritten];
      fSink(one->Line());
      Note(one->Status());
      one.reset();
    }
    if (fWritten != written) {
      // Who reads the lines may let them wait, and with them the processes.
      const Clock::duration held = Clock::now() - before;
      std::ranges::for_each(fRunning, [held](ServerProcess* one) { one->Postpone(held); });
    }
  }

  void Note(int status) {
    fStatus =
        fStatus == kExitFailed || status == kExitFailed ? kExitFailed : std::max(fStatus, status);
  }

  report::Sink fSink;
  std::size_t fJobs;
  std::vector<std::unique_ptr<ServerProcess>> fServers;  // null: written
  std::vector<ServerProcess*> fRunning;
  std::size_t fStarted = 0;
  std::size_t fWritten = 0;
  int fStatus = kExitDone;
};

}  // namespace

int CollectMany(const CollectOptions& options) {
  RefuseForAll(options);
  const std::unique_ptr<os::OutputFile> output =
      OpenOutput(GoesToStandardOutput(options) ? std::nullopt : options.output,
                 options.showSecrets ? os::Privacy::Owner : os::Privacy::Usual);
  Collection collection(options.many, [&output](std::string_view line) {
    if (output) {
      output->Write(line);
    } else {
      os::WriteStandardOutput(line);
    }
  });
  const int status = collection.Run();
  if (output) {
    output->Complete();
  }
  return status;
}

}  // namespace strake::app
