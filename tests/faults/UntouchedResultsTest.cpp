// A host and a driver that leave alone what they were given to fill.
#include "platform/server/ServerDescription.h"
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/FaultyObserver.h"
#include "tests/support/Places.h"
#include "tests/support/Recorder.h"
#include "tests/support/WholeCollection.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using platform::Fault;
using platform::ServerDescription;
using FaultyRecorder = FaultyObserver<Recorder>;

ServerDescription ServerNamed(const std::string& name) {
  return platform::ReadServerDescription(std::filesystem::path(SourceFolder()) / "servers" /
                                         (name + ".server.json"));
}

// The query on a fresh object, whatever it ends by.
void RunQuery(const ServerDescription& server, const NamedQuery& query, FaultyRecorder& record,
              const FaultPlan& plan) {
  Identifiers() = SharedIdentifiers{};
  platform::HostSession session(server, &record);
  session.Attach(&StrakeModuleEntry);
  record.Plan(plan);
  try {
    session.Query(query.classes);
  } catch (...) {  // NOLINT(bugprone-empty-catch): the record tells of it
  }
}

// Nothing of an earlier class or instance is taken for the one asked for.
TEST(UntouchedResults, AHandleThatTheHostLeavesAloneIsAsOneThatItEmpties) {
  const ServerDescription server = ServerNamed("demo-orlo");
  long compared = 0;
  for (const NamedQuery& query : WholeCollection()) {
    for (const BoundaryCall call : {BoundaryCall::GetClass, BoundaryCall::CreateInstance}) {
      // The first few calls and then ever fewer.
      for (long place = 1;; place += 1 + place / 4) {
        FaultyRecorder emptied;
        RunQuery(server, query, emptied,
                 {.fault = Fault::EmptyHandle, .atCall = place, .only = call});
        if (emptied.Faults() == 0) break;
        FaultyRecorder untouched;
        RunQuery(server, query, untouched,
                 {.fault = Fault::UntouchedHandle, .atCall = place, .only = call});
        ASSERT_EQ(untouched.Faults(), 1);
        ASSERT_EQ(untouched.All(), emptied.All()) << query.name << ", call " << place;
        ++compared;
      }
    }
  }
  EXPECT_GE(compared, 30);
}

TEST(UntouchedResults, ALengthThatTheDriverDoesNotWriteIsZero) {
  const struct {
    const char* server;
    BoundaryCall call;
    std::string_view line;
  } cases[] = {{"demo-orlo", BoundaryCall::DotSend, "log 4 Sent command: "},
               {"demo-tavit", BoundaryCall::KestleSend, "log 4 Result of Kestle cmd: "}};
  for (const auto& one : cases) {
    SCOPED_TRACE(one.server);
    const ServerDescription server = ServerNamed(one.server);
    long told = 0;
    for (const NamedQuery& query : WholeCollection()) {
      FaultyRecorder record;
      RunQuery(
          server, query, record,
          {.fault = Fault::UntouchedLength, .atCall = 1, .only = one.call, .andAllBehind = true});
      const Lines lines = record.Beginning({one.line});
      for (const std::string& line : lines) {
        EXPECT_NE(line.find("ReturnDataLen:0"), std::string::npos) << line;
      }
      told += static_cast<long>(lines.size());
    }
    EXPECT_GE(told, 3);
  }
}

}  // namespace
}  // namespace strake::tests
