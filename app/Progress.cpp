#include "app/Progress.h"

#include <utility>

namespace strake::app {
namespace {

constexpr std::chrono::milliseconds kPatience{1000};
constexpr std::chrono::milliseconds kBetweenLines{100};

// Back to the line's begin, and nothing behind it.
constexpr std::string_view kErase = "\r\x1b[K";

}  // namespace

Progress::Progress(std::size_t queries, Means means)
    : fMeans(std::move(means)), fNext(fMeans.now() + kPatience), fQueries(queries) {
  Enter();
}

Progress::~Progress() {
  Erase();
  Leave();
}

void Progress::EndBySignal() noexcept {
  if (fIsShown) {
    fMeans.write(kErase);
  }
}

void Progress::Erase() {
  if (fIsShown) {
    const os::SignalHold hold;
    fMeans.write(kErase);
    fIsShown = false;
    fNext = fMeans.now();
  }
}

platform::Fault Progress::BeforeCall(platform::BoundaryCall /*call*/) {
  Show();
  return platform::Fault::None;
}

void Progress::OnQuery(const std::vector<std::string>& /*classes*/) {
  ++fQuery;
  fProcessor = 0;
}

// The plug-in takes the answer's low eight bits.
void Progress::OnDiscoverSPs(int result) { fProcessors = static_cast<unsigned char>(result); }

void Progress::OnDotSend(const platform::DotSend& send) {
  fProcessor = static_cast<unsigned int>(send.sp) + 1;
  ++fSends;
}

void Progress::OnKestleSend(const platform::KestleSend& /*send*/) { ++fSends; }

void Progress::Show() {
  const Clock::time_point now = fMeans.now();
  if (now >= fNext) {
    const os::SignalHold hold;
    fMeans.write(std::string(kErase) + Line());
    fIsShown = true;
    fNext = now + kBetweenLines;
  }
}

std::string Progress::Line() const {
  std::string line = "query " + std::to_string(fQuery) + " of " + std::to_string(fQueries);
  if (fProcessor != 0) {
    line +=
        ", service processor " + std::to_string(fProcessor) + " of " + std::to_string(fProcessors);
  }
  return line + ", " + std::to_string(fSends) + (fSends == 1 ? " command sent" : " commands sent");
}

}  // namespace strake::app
