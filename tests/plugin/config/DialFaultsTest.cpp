// A host that fails in the middle of a dial run.
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/plugin/config/DialScenario.h"
#include "tests/support/FaultyObserver.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using platform::Fault;

using FaultyRecorder = FaultyObserver<Recorder>;

// Runs one query that ends by an exception; its text.
std::string ThrownBy(FaultyRecorder& record, const Scenario& scenario, const Classes& classes) {
  Identifiers() = SharedIdentifiers{};
  platform::HostSession session(scenario.server, &record);
  session.Attach(&StrakeModuleEntry);
  try {
    session.Query(classes);
  } catch (const std::exception& error) {
    return error.what();
  }
  return "nothing";
}

TEST(DialFaults, AnEmptyHandleIsTheHostsAssertion) {
  for (const BoundaryCall call : {BoundaryCall::GetClass, BoundaryCall::CreateInstance}) {
    for (const char* const className : {kSerialPort, kDialout, kDialin, kAlerts}) {
      SCOPED_TRACE(className);
      FaultyRecorder record;
      record.Plan({.fault = Fault::EmptyHandle, .atCall = 1, .only = call});
      const std::string text = ThrownBy(record, DialServer(1, 1, 1), {className});
      EXPECT_NE(text.find("px != 0"), std::string::npos) << text;
      EXPECT_EQ(record.Beginning({"Set", "Commit"}), Lines{});
      // A login is created before anything is sent for it, the others after.
      EXPECT_EQ(record.Beginning({"dot 2 4."}).size(), className == kDialin ? 0U : 1U);
    }
  }
}

TEST(DialFaults, OnlyADateThatIsRejectedIsReplaced) {
  // A host that throws on the property itself is not taken for one.
  const Scenario scenario = DialServer(1, 0, 1);
  FaultyRecorder record;
  record.Plan({.fault = Fault::StandardException, .atCall = 20, .only = BoundaryCall::SetProperty});
  EXPECT_EQ(ThrownBy(record, scenario, {kDialin}), "injected fault");
  const Lines properties = record.Properties(1);
  ASSERT_EQ(properties.size(), 19U);
  EXPECT_EQ(properties.back(), "AdvancedConfiguration string Disabled");
  EXPECT_EQ(record.Beginning({"log 3 LastLogin", "log 4 TStrakePluginCallbacks::getD"}),
            (Lines{"log 4 TStrakePluginCallbacks::getDialinSettings entered. Instance #1",
                   "log 3 LastLogin = 3/7/2009 14:5:9 GMT offset (60)"}));
  EXPECT_EQ(record.Beginning({"Commit"}), Lines{});
}

}  // namespace
}  // namespace strake::tests
