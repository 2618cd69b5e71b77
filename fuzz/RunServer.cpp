#include "fuzz/RunServer.h"

#include "cim/EqualKeys.h"
#include "fuzz/Check.h"
#include "platform/boundary/TraceWriter.h"
#include "platform/session/HostSession.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/FaultyObserver.h"

#include <algorithm>
#include <exception>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string_view>

namespace strake::fuzz {
namespace {

using platform::BoundaryCall;
using platform::Fault;

// Writes the trace, counts, and makes calls fail.
class Watcher : public tests::FaultyObserver<platform::TraceWriter> {
 public:
  Watcher(std::ostream& trace, const Trouble& trouble) : FaultyObserver(trace) {
    Plan({.fault = trouble.fault, .atCall = trouble.atCall});
  }

  Fault BeforeCall(BoundaryCall call) override {
    Fault fault = FaultyObserver::BeforeCall(call);
    if (Calls() > kMostCalls) fault = Fault::StandardException;
    fMayThrow = fMayThrow || Throws(fault) || fault == Fault::EmptyHandle ||
                fault == Fault::UntouchedHandle;
    if (Throws(fault) && call == BoundaryCall::DotSend) ++fLostSends;
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

// Parsing every line would be most of a run. Which lines are parsed differs from
// trace to trace.
constexpr std::size_t kParsedOneIn = 16;

void CheckTrace(std::string_view trace) {
  for (std::size_t number = trace.size(); !trace.empty(); ++number) {
    const std::size_t end = trace.find('\n');
    Check(end != trace.npos, "the trace ends with a whole line");
    const std::string_view line = trace.substr(0, end);
    Check(line.starts_with("{\"event\":\""), "a trace line begins with its event");
    Check(
        std::ranges::all_of(line, [](char byte) { return static_cast<unsigned char>(byte) >= 32; }),
        "the trace has no control characters");
    Check(number % kParsedOneIn != 0 || nlohmann::json::accept(line), "a trace line is JSON");
    trace.remove_prefix(end + 1);
  }
}

// What the catalogue says of the values, which others are told.
void CheckLengths(const std::vector<cim::StoredInstance>& instances) {
  for (const cim::StoredInstance& instance : instances) {
    for (const cim::StoredProperty& property : instance.properties) {
      const std::size_t maximum = property.schema->maximumLength;
      Check(maximum == 0 || cim::ToText(property.value).size() <= maximum,
            "a text is not longer than the catalogue says");
    }
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
    CheckLengths(session.Instances().Committed());
    static_cast<void>(cim::FindEqualKeys(session.Instances().Committed()));
    session.Detach();
  }
  const long left = platform::LiveDotCommands() - dotCommands - watcher.PresenceTests();
  Check(left >= 0 && left <= watcher.LostSends(), "only presence-test commands stay alive");
  Check(platform::LiveKestleCommands() == kestleCommands, "no Kestle command stays alive");
  CheckTrace(trace.str());
}

}  // namespace strake::fuzz
