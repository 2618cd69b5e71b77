#include "app/Watch.h"

#include "app/Errors.h"
#include "app/ForwardingObserver.h"
#include "app/Inputs.h"
#include "app/Messages.h"
#include "app/ReportOutput.h"
#include "app/RunQueries.h"
#include "app/SharedFiles.h"
#include "app/Trail.h"
#include "app/WatchView.h"
#include "findings/CollectionWatch.h"
#include "platform/session/HostSession.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace strake::app {
namespace {

// From one round's begin to the next one's; one that took longer is not made up
// for.
class Pace {
 public:
  using Clock = std::chrono::steady_clock;

  explicit Pace(std::chrono::milliseconds interval) : fInterval(interval) {}

  // When the next round is due.
  Clock::time_point Next() {
    fNext = std::max(fNext + fInterval, Clock::now());
    return fNext;
  }

 private:
  std::chrono::milliseconds fInterval;
  Clock::time_point fNext = Clock::now();
};

class Rounds {
 public:
  Rounds(const CollectOptions& options, const Inputs& inputs, const Trail& trail,
         const platform::LogSink& sink)
      : fOptions(options),
        fInputs(inputs),
        fObservers({trail.Observer(), &fWatch}),
        fSession(inputs.server.description, &fObservers, sink) {
    Attach(fSession, inputs.module.Entry());
    Initialize(fSession);
  }

  compare::Round Collect() {
    fWatch.Restart();
    report::Collected collected;
    collected.facts = FactsOf(
        fInputs, std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
    RunQueries(fSession, fInputs.queries);
    collected.instances = fSession.Namespace()->TakeCommitted();
    fWatch.AddTo(collected);
    report::Select(collected, fOptions.selection);
    std::vector<cim::StoredInstance> instances = collected.instances;
    return {std::move(instances),
            report::Report(std::move(collected),
                           fOptions.showSecrets ? report::Secrets::Shown : report::Secrets::Masked,
                           fInputs.limits)};
  }

  void Finish() { app::Finish(fSession); }

 private:
  const CollectOptions& fOptions;
  const Inputs& fInputs;
  findings::CollectionWatch fWatch;
  ForwardingObserver fObservers;
  platform::HostSession fSession;
};

void Run(Rounds& rounds, const WatchOptions& options, WatchView& view) {
  Pace pace(options.interval);
  std::optional<compare::Round> last;
  for (std::uint32_t count = 1;; ++count) {
    compare::Round round = rounds.Collect();
    if (const auto warning = NoSuchSensor(round.report, options.collect); warning && count == 1) {
      view.AddLogLine(WarningLine(*warning));
    }
    view.Show(round, last ? &*last : nullptr);
    if (count == options.count) {
      break;
    }
    last.emplace(std::move(round));
    view.WaitUntil(pace.Next());
  }
  rounds.Finish();
}

}  // namespace

int Watch(const WatchOptions& options) {
  RefuseSharedFiles(options.collect);
  const Inputs inputs = ReadInputs(options.collect);
  std::optional<WatchView> view;
  Trail trail(options.collect, [&view](std::string_view line) { view->AddLogLine(line); });
  if (!options.collect.quiet) {
    WarnOfUnknownClasses(inputs.queries);
  }
  view.emplace(options, inputs.server.facts.name);  // takes the terminal
  try {
    Rounds rounds(options.collect, inputs, trail, trail.Sink());
    Run(rounds, options, *view);
  } catch (const RunError&) {
    trail.Complete();  // it holds what happened
    throw;
  }
  trail.Complete();
  view->Complete();
  return kExitDone;
}

}  // namespace strake::app
