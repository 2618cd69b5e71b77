// The plug-in object: attach, registration, versions, logging gate, end.
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/session/HostSession.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "tests/support/Scenario.h"

#include <cstring>
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

// Calls the function in slot 5 itself: C++ knows no virtual call without an object.
TEST_F(PluginObject, DestroyWithANullObjectDoesNothing) {
  ASSERT_EQ(StrakeModuleEntry(1), 1);
  NVELKZEV20::IPluginCallbacks* const plugin = platform::RegisteredPlugin();
  using Slot = void (*)(NVELKZEV20::IPluginCallbacks*);
  Slot const* slots = nullptr;
  std::memcpy(&slots, static_cast<const void*>(plugin), sizeof(slots));
  const Slot destroy = slots[6];  // the destructor, slot 0, has two entries
  destroy(nullptr);
  EXPECT_EQ(plugin->GetDisplayName(), "SP Configuration");
  // The right slot: AddressSanitizer tells an object that it leaves.
  destroy(plugin);
}

TEST_F(PluginObject, TheQueryInterfacesDestructorEndsTheWholeObject) {
  struct Watched : TStrakePluginCallbacks {
    explicit Watched(bool& isEnded) : ended(isEnded) {}
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() override { ended = true; }
    bool& ended;
  };
  bool isEnded = false;
  NVELKZEV20::IPluginBasicQueryCallbacks* const face = new Watched(isEnded);
  delete face;
  EXPECT_TRUE(isEnded);
}

TEST_F(PluginObject, WithoutAProviderNoLineReachesTheLogger) {
  platform::SetProviderGiven(false);
  Scenario scenario = Scenario::Orlo();
  scenario.RunAll({{"VELKSG_SP_ComputerSystem"}, {"VELKSG_SP_NumericSensor"}});
  EXPECT_EQ(scenario.Record().Logs(), Lines{});
  // The work is done all the same.
  EXPECT_EQ(scenario.Record().Beginning({"Commit"}), (Lines{"Commit 1"}));
}

// A part of a line that tells when it is put into one.
struct Told {
  int& times;

  friend void AppendPart(std::string& text, const Told& part) {
    ++part.times;
    text += 'x';
  }
};

// Every wrapper, with one message and with parts.
void LogThroughEachWrapper(const TStrakePluginCallbacks& plugin, int& times) {
  const std::string message = "message";
  plugin.LogLevel0(message);
  plugin.LogLevel0("part ", Told{times});
  plugin.LogLevel1(message);
  plugin.LogLevel1("part ", Told{times});
  plugin.LogLevel2(message);
  plugin.LogLevel2("part ", Told{times});
  plugin.LogLevel3(message);
  plugin.LogLevel3("part ", Told{times});
  plugin.LogLevel4(message);
  plugin.LogLevel4("part ", Told{times});
  plugin.LogNotice4(message);
  plugin.LogNotice4("part ", Told{times});
  plugin.LogLevel0(std::string());
  plugin.LogLevel4("", std::string());
}

TEST_F(PluginObject, EachWrapperHasItsLevel) {
  HostSession session(fServer, &fRecord);
  session.Attach(&StrakeModuleEntry);
  int times = 0;
  LogThroughEachWrapper(dynamic_cast<TStrakePluginCallbacks&>(session.Plugin()), times);
  EXPECT_EQ(fRecord.Logs(),
            (Lines{"0 message", "0 part x", "1 message", "1 part x", "2 message", "2 part x",
                   "3 message", "3 part x", "4 message", "4 part x", "4 message", "4 part x"}));
  EXPECT_EQ(times, 6);
}

TEST_F(PluginObject, WithoutAProviderNoLineIsPutTogether) {
  platform::SetProviderGiven(false);
  HostSession session(fServer, &fRecord);
  session.Attach(&StrakeModuleEntry);
  int times = 0;
  LogThroughEachWrapper(dynamic_cast<TStrakePluginCallbacks&>(session.Plugin()), times);
  EXPECT_EQ(fRecord.Logs(), Lines{});
  EXPECT_EQ(times, 0);
}

// A logger that calls the object again while it is given a line.
class CallingAgain : public Recorder {
 public:
  NVELKZEV20::IPluginCallbacks* plugin = nullptr;
  std::string seenAfterwards;

  void OnLog(int level, const std::string& message) override {
    Recorder::OnLog(level, message);
    if (message.starts_with("De-")) {
      plugin->Initialize();
      seenAfterwards = message;
    }
  }
};

TEST_F(PluginObject, ALoggerThatCallsTheObjectAgainKeepsItsMessage) {
  CallingAgain record;
  HostSession session(fServer, &record);
  session.Attach(&StrakeModuleEntry);
  record.plugin = &session.Plugin();
  session.Deinitialize();
  EXPECT_EQ(record.seenAfterwards, "De-Initializing Service Processor Configuration Collector");
  EXPECT_EQ(record.Logs().size(), 2U);
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
