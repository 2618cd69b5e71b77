// The plug-in object: attach, registration, versions, logging gate, end.
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/session/HostSession.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "tests/support/Scenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::HostSession;
using platform::ManagerAnswer;

class PluginObject : public testing::Test {
 protected:
  PluginObject() { Reset(); }
  ~PluginObject() override { Reset(); }
  PluginObject(const PluginObject&) = delete;
  PluginObject& operator=(const PluginObject&) = delete;

  static void Reset() {
    platform::SetManagerAnswer(ManagerAnswer::Manager);
    platform::SetProviderGiven(true);
    platform::ForgetPlugin();
  }

  platform::ServerDescription fServer = Scenario::Orlo().server;
  Recorder fRecord;
};

TEST_F(PluginObject, TellsItsNameItsVersionsAndNoReservedObject) {
  HostSession session(fServer);
  session.Attach(&StrakeModuleEntry);
  EXPECT_EQ(session.Plugin().GetDisplayName(), "SP Configuration");
  EXPECT_EQ(session.Plugin().GetVersion(), "1.0");
  EXPECT_EQ(session.Plugin().GetFrameworkVersion(), "1.0");
  EXPECT_EQ(session.Plugin().GetReserved(), nullptr);
}

TEST_F(PluginObject, LogsItsStartAndStopAndNothingElse) {
  HostSession session(fServer, &fRecord);
  session.Attach(&StrakeModuleEntry);
  EXPECT_EQ(fRecord.All(), Lines{});
  session.Initialize();
  session.Deinitialize();
  EXPECT_EQ(fRecord.All(),
            (Lines{"log 3 Initializing Service Processor Configuration Collector",
                   "log 3 De-Initializing Service Processor Configuration Collector"}));
}

TEST_F(PluginObject, ReleasesTheManagersHandlesAfterRegistration) {
  HostSession session(fServer);
  session.Attach(&StrakeModuleEntry);
  EXPECT_NE(platform::RegisteredPlugin(), nullptr);
  EXPECT_EQ(platform::ManagerHandlesHeld(), 0);
}

TEST_F(PluginObject, AttachOtherReasonsCreateNothingAndSucceed) {
  for (const unsigned int reason : {0U, 2U, 3U, 4U, 0xFFFFFFFFU}) {
    EXPECT_EQ(StrakeModuleEntry(reason), 1);
    EXPECT_EQ(platform::RegisteredPlugin(), nullptr);
  }
}

TEST_F(PluginObject, AttachFollowedByDetachLeavesTheObjectAlive) {
  ASSERT_EQ(StrakeModuleEntry(1), 1);
  NVELKZEV20::IPluginCallbacks* const plugin = platform::RegisteredPlugin();
  ASSERT_EQ(StrakeModuleEntry(0), 1);
  EXPECT_EQ(plugin->GetDisplayName(), "SP Configuration");
  plugin->Destroy();
}

TEST_F(PluginObject, DestroyWithANullObjectDoesNothing) {
  TStrakePluginCallbacks::DestroyObject(nullptr);
}

TEST_F(PluginObject, TheQueryInterfacesDestructorEndsTheWholeObject) {
  ASSERT_EQ(StrakeModuleEntry(1), 1);
  // AddressSanitizer tells a partly deleted or leaked object.
  delete dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks*>(platform::RegisteredPlugin());
}

TEST_F(PluginObject, WithoutAProviderNoLineReachesTheLogger) {
  platform::SetProviderGiven(false);
  Scenario scenario = Scenario::Orlo();
  scenario.RunAll({{"VELKSG_SP_ComputerSystem"}, {"VELKSG_SP_NumericSensor"}});
  EXPECT_EQ(scenario.Record().Logs(), Lines{});
  // The work is done all the same.
  EXPECT_EQ(scenario.Record().Beginning({"Commit"}), (Lines{"Commit 1"}));
}

TEST_F(PluginObject, AnEmptyMessageDoesNotReachTheLogger) {
  Scenario scenario = Scenario::Orlo(0);
  scenario.server.host.machineTypeModel.text = "";
  scenario.server.host.systemName.text = "";
  scenario.Run(Classes{});
  const Lines logs = scenario.Record().Logs();
  ASSERT_GE(logs.size(), 4U);
  EXPECT_EQ(logs[0], "3 Strake plugin begin execution.");
  EXPECT_EQ(logs[1], "3 Obtained MTM.");
  EXPECT_EQ(logs[2], "3 Obtained SystemName.");
  EXPECT_TRUE(logs[3].starts_with("3 fSP_ComputerSystem = 0"));
}

TEST_F(PluginObject, AManagerThatIsNoneRaisesTheHostsAssertion) {
  for (const ManagerAnswer answer : {ManagerAnswer::PlainNamespace, ManagerAnswer::Empty}) {
    platform::SetManagerAnswer(answer);
    try {
      StrakeModuleEntry(1);
      ADD_FAILURE() << "no assertion";
    } catch (const platform::AssertionError& error) {
      const std::string text = error.what();
      EXPECT_NE(text.find("px != 0"), std::string::npos) << text;
      EXPECT_NE(text.find("line 315"), std::string::npos) << text;
    }
    EXPECT_EQ(platform::RegisteredPlugin(), nullptr);
    EXPECT_EQ(platform::ManagerHandlesHeld(), 0);
  }
}

}  // namespace
}  // namespace strake::tests
