#include "platform/session/HostSession.h"
#include "plugin/host/TOSSpecific.h"
#include "plugin/host/TRootObject.h"
#include "plugin/spaccess/SPLibrary.h"
#include "tests/platform/TestServer.h"

#include <functional>

namespace strake::platform {
namespace {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::IPluginBasicQueryCallbacks;
using NVELKZEV20::IPluginCallbacks;
using NVELKZEV20::TPluginManagerNamespace;
using NVELKZEV20::TRootObject;
using Lines = std::vector<std::string>;
using Classes = std::vector<boost::shared_ptr<ICIMClass>>;

// What the test's plug-in was told, and what it does with a query.
struct PluginScript {
  Lines told;
  std::function<void(const boost::shared_ptr<ICIMNamespace>&, const Classes&)> query =
      [](const auto&, const auto&) {};
  bool registers = true;
  bool entrySucceeds = true;
  bool destroyThrows = false;
};

PluginScript& Script() {
  static PluginScript script;
  return script;
}

class CallbacksOnly : public IPluginCallbacks {
 public:
  ~CallbacksOnly() override { Script().told.emplace_back("ended"); }
  void* GetReserved() override { return nullptr; }
  std::string GetDisplayName() override { return {}; }
  std::string GetVersion() override { return {}; }
  std::string GetFrameworkVersion() override { return {}; }
  void Destroy() override {
    const bool throws = Script().destroyThrows;
    delete this;
    if (throws) {
      throw std::runtime_error("cannot end");
    }
  }
  void Initialize() override { Script().told.emplace_back("initialize"); }
  void Deinitialize() override { Script().told.emplace_back("deinitialize"); }
};

class TestPlugin : public CallbacksOnly, public IPluginBasicQueryCallbacks {
 public:
  void Query(boost::shared_ptr<ICIMNamespace> cimNamespace, const Classes& classes) override {
    Script().told.emplace_back("query");
    Script().query(cimNamespace, classes);
  }
};

template <typename Plugin>
int Enter(unsigned int reason) {
  Script().told.push_back("entry " + std::to_string(reason));
  if (reason == 1 && Script().registers) {
    const auto manager =
        boost::dynamic_pointer_cast<TPluginManagerNamespace>(TRootObject::GetPluginManager());
    manager->RegisterPlugin(new Plugin);
  }
  return Script().entrySucceeds ? 1 : 0;
}

class HostSessionTest : public PlatformTest {
 protected:
  HostSessionTest() { Script() = {}; }
  FaultyTrace fTrace;
  ServerDescription fServer;
};

TEST_F(HostSessionTest, LeadsAPluginFromAttachToDetach) {
  {
    HostSession session(fServer);
    session.Attach(Enter<TestPlugin>);
    session.Initialize();
    session.Query({});
    session.Query({});
    session.Deinitialize();
    session.Detach();
    EXPECT_THROW(static_cast<void>(session.Plugin()), SessionError);
    session.Detach();
  }
  EXPECT_EQ(Script().told,
            (Lines{"entry 1", "initialize", "query", "query", "deinitialize", "ended", "entry 0"}));
  EXPECT_EQ(RegisteredPlugin(), nullptr);
}

TEST_F(HostSessionTest, DetachesWhenItEnds) {
  {
    HostSession session(fServer);
    session.Attach(Enter<TestPlugin>);
  }
  EXPECT_EQ(Script().told, (Lines{"entry 1", "ended", "entry 0"}));
}

TEST_F(HostSessionTest, MayAttachAgainAfterADetach) {
  HostSession session(fServer);
  session.Attach(Enter<TestPlugin>);
  EXPECT_EQ(TextThrownBy<SessionError>([&] { session.Attach(Enter<TestPlugin>); }),
            "a module is attached already");
  session.Detach();
  session.Attach(Enter<TestPlugin>);
  session.Query({});
}

TEST_F(HostSessionTest, RefusesAModuleThatDoesNotAttachOrRegister) {
  HostSession session(fServer);
  Script().registers = false;
  EXPECT_EQ(TextThrownBy<SessionError>([&] { session.Attach(Enter<TestPlugin>); }),
            "the module registered no plug-in");
  EXPECT_EQ(Script().told, (Lines{"entry 1", "entry 0"}));
  Script().entrySucceeds = false;
  EXPECT_EQ(TextThrownBy<SessionError>([&] { session.Attach(Enter<TestPlugin>); }),
            "the module's entry reports a failure");
  EXPECT_EQ(TextThrownBy<SessionError>([&] { session.Initialize(); }), "no plug-in is attached");
  EXPECT_EQ(TextThrownBy<SessionError>([&] { session.Query({}); }), "no plug-in is attached");
}

TEST_F(HostSessionTest, DoesNotTakeAnEarlierPluginForTheNewModules) {
  {
    HostSession session(fServer);
    session.Attach(Enter<TestPlugin>);
    Script().registers = false;
  }
  HostSession session(fServer);
  EXPECT_THROW(session.Attach(Enter<TestPlugin>), SessionError);
}

TEST_F(HostSessionTest, RefusesToQueryAPluginWithoutAQueryFace) {
  HostSession session(fServer, &fTrace);
  session.Attach(Enter<CallbacksOnly>);
  EXPECT_EQ(TextThrownBy<SessionError>([&] { session.Query({}); }), "the plug-in takes no queries");
  EXPECT_TRUE(fTrace.TakeLines().empty());
}

TEST_F(HostSessionTest, HandsTheRequestedClassesAndTheNamespaceToTheQuery) {
  HostSession session(fServer, &fTrace);
  session.Attach(Enter<TestPlugin>);
  Script().query = [](const boost::shared_ptr<ICIMNamespace>& cimNamespace,
                      const Classes& classes) {
    ASSERT_EQ(classes.size(), 2U);
    EXPECT_EQ(classes[1]->GetName(), "Unknown");
    boost::shared_ptr<ICIMClass> cimClass;
    cimNamespace->GetClass(cimClass, classes[0]->GetName(), {});
    boost::shared_ptr<ICIMInstance> instance;
    cimClass->CreateInstance(instance, {});
    instance->SetProperty("SourceNode", static_cast<unsigned char>(1), {});
    instance->Commit({});
  };
  session.Query({"VELKSG_SP_ComputerSystem", "Unknown"});
  EXPECT_EQ(
      fTrace.TakeLines(),
      (Lines{
          R"({"event":"query","classes":["VELKSG_SP_ComputerSystem","Unknown"]})",
          R"({"event":"host","call":"GetName","result":"Unknown"})",
          R"({"event":"host","call":"GetName","result":"VELKSG_SP_ComputerSystem"})",
          R"({"event":"host","call":"GetClass","class":"VELKSG_SP_ComputerSystem","found":true})",
          R"({"event":"host","call":"CreateInstance","class":"VELKSG_SP_ComputerSystem","instance":1})",
          R"({"event":"host","call":"SetProperty","instance":1,"name":"SourceNode","type":"uint8","value":1})",
          R"({"event":"host","call":"Commit","instance":1})", R"({"event":"query_end"})"}));
  ASSERT_EQ(session.Instances().Committed().size(), 1U);
  EXPECT_EQ(session.Namespace().use_count(), 1);
  EXPECT_EQ(session.Instances().HandlesHeld(), 0);

  session.Query({"VELKSG_SP_ComputerSystem", "Unknown"});
  ASSERT_EQ(session.Instances().Committed().size(), 2U);
  EXPECT_EQ(session.Instances().Committed()[1].number, 2U);
}

TEST_F(HostSessionTest, PassesOnWhatAQueryThrows) {
  HostSession session(fServer, &fTrace);
  session.Attach(Enter<TestPlugin>);
  Script().query = [](const auto&, const auto&) { throw std::runtime_error("lost"); };
  EXPECT_EQ(TextThrownBy<std::runtime_error>([&] { session.Query({}); }), "lost");
  Script().query = [](const auto&, const auto&) { throw 5; };
  EXPECT_THROW(session.Query({}), int);
  EXPECT_EQ(fTrace.TakeLines(),
            (Lines{R"({"event":"query","classes":[]})", R"({"event":"query_end","throws":"lost"})",
                   R"({"event":"query","classes":[]})",
                   R"({"event":"query_end","throws":"unknown exception"})"}));
  EXPECT_EQ(session.Namespace().use_count(), 1);
  EXPECT_EQ(session.Instances().HandlesHeld(), 0);
}

TEST_F(HostSessionTest, SetsThePlatformUpAndLetsItGo) {
  fServer.host.machineTypeModel = {"5127-ABC", false};
  fServer.sp.kind = SpKind::Tavit;
  Lines sunk;
  {
    HostSession session(fServer, &fTrace,
                        [&](int, const std::string& message) { sunk.push_back(message); });
    EXPECT_EQ(NVELKZEV20::TOSSpecific::GetMachineTypeFromID(), "5127-ABC");
    EXPECT_TRUE(NVELKZEV20::SPLibrary::GetSplibraryInstance(0)->isKestle());
    TRootObject::GetCoreLogger()->Log(1, "heard");
    EXPECT_EQ(fTrace.TakeLines().size(), 3U);
  }
  TRootObject::GetCoreLogger()->Log(1, "unheard");
  NVELKZEV20::SPLibrary::GetSplibraryInstance(0)->isKestle();
  EXPECT_TRUE(fTrace.TakeLines().empty());
  EXPECT_EQ(sunk, Lines{"heard"});
}

TEST_F(HostSessionTest, SurvivesAPluginThatFailsToEnd) {
  {
    HostSession session(fServer);
    session.Attach(Enter<TestPlugin>);
    Script().destroyThrows = true;
    EXPECT_EQ(TextThrownBy([&] { session.Detach(); }), "cannot end");
    session.Detach();
  }
  EXPECT_EQ(Script().told, (Lines{"entry 1", "ended"}));
  HostSession session(fServer);
  session.Attach(Enter<TestPlugin>);  // ended by the session's own end
}

}  // namespace
}  // namespace strake::platform
