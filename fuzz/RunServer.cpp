#include "fuzz/RunServer.h"

#include "cim/EqualKeys.h"
#include "fuzz/Check.h"
#include "platform/boundary/TraceWriter.h"
#include "platform/session/HostSession.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"

#include <algorithm>
#include <exception>
#include <sstream>

namespace strake::fuzz {
namespace {

using platform::BoundaryCall;
using platform::Fault;

// Writes the trace, counts, and makes calls fail.
class Watcher : public platform::TraceWriter {
 public:
  Watcher(std::ostream& trace, const Trouble& trouble)
      : platform::TraceWriter(trace), fTrouble(trouble) {}

  Fault BeforeCall(BoundaryCall call) override {
    ++fCalls;
    Fault fault = fCalls == fTrouble.atCall ? fTrouble.fault : Fault::None;
    if (fCalls > kMostCalls) fault = Fault::StandardException;
    const bool throws = fault == Fault::StandardException || fault == Fault::OtherException;
    fMayThrow = fMayThrow || throws || fault == Fault::EmptyHandle;
    if (throws && call == BoundaryCall::DotSend) ++fLostSends;
    return fault;
  }

  void OnLog(int level, const std::string& message) override {
    Check(level >= 0 && level <= 4, "a log line has a level from 0 to 4");
    Check(!message.empty(), "a log line has a text");
    TraceWriter::OnLog(level, message);
  }

  void OnDotSend(const platform::DotSend& send) override {
    constexpr std::array<unsigned char, 2> kPresenceTest = {1, 1};
    if (std::ranges::equal(send.identifier, kPresenceTest)) ++fPresenceTests;
    TraceWriter::OnDotSend(send);
  }

  // A query may leave by an exception: something that it asked for failed so.
  [[nodiscard]] bool MayThrow() const { return fMayThrow; }
  [[nodiscard]] long PresenceTests() const { return fPresenceTests; }
  // Dot commands that never came back from the driver.
  [[nodiscard]] long LostSends() const { return fLostSends; }

 private:
  Trouble fTrouble;
  long fCalls = 0;
  long fPresenceTests = 0;
  long fLostSends = 0;
  bool fMayThrow = false;
};

void RunQuery(platform::HostSession& session, const Watcher& watcher, const Query& query) {
  try {
    session.Query(query);
  } catch (const std::exception&) {
    Check(watcher.MayThrow(), "a query throws only when a call failed");
  } catch (int) {  // Fault::OtherException
    Check(watcher.MayThrow(), "a query throws only when a call failed");
  }
  Check(session.Instances().HandlesHeld() == 0, "a query lets go of its classes and instances");
  Check(session.Namespace().use_count() == 1, "a query lets go of its namespace");
}

void CheckTrace(const std::string& trace) {
  Check(trace.empty() || trace.ends_with("}\n"), "the trace ends with a whole line");
  Check(
      std::ranges::all_of(
          trace, [](char byte) { return byte == '\n' || static_cast<unsigned char>(byte) >= 32; }),
      "the trace has no control characters");
  std::size_t line = 0;
  while (line < trace.size()) {
    Check(trace.compare(line, 10, "{\"event\":\"") == 0, "a trace line begins with its event");
    const std::size_t end = trace.find('\n', line);
    Check(trace[end - 1] == '}', "a trace line ends its object");
    line = end + 1;
  }
}

}  // namespace

void RunServer(const ServerCase& serverCase) {
  // As a fresh process has them.
  Identifiers() = SharedIdentifiers{};
  const long dotCommands = platform::LiveDotCommands();
  const long kestleCommands = platform::LiveKestleCommands();
  std::ostringstream trace;
  Watcher watcher(trace, serverCase.trouble);
  {
    platform::HostSession session(serverCase.server, &watcher);
    session.Attach(&StrakeModuleEntry);
    for (const Query& query : serverCase.queries) RunQuery(session, watcher, query);
    static_cast<void>(cim::FindEqualKeys(session.Instances().Committed()));
    session.Detach();
  }
  const long left = platform::LiveDotCommands() - dotCommands - watcher.PresenceTests();
  Check(left >= 0 && left <= watcher.LostSends(), "only presence-test commands stay alive");
  Check(platform::LiveKestleCommands() == kestleCommands, "no Kestle command stays alive");
  CheckTrace(trace.str());
}

}  // namespace strake::fuzz
