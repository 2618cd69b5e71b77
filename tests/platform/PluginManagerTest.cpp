#include "plugin/host/TRootObject.h"
#include "tests/platform/TestServer.h"

namespace strake::platform {
namespace {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::TPluginManagerNamespace;
using NVELKZEV20::TRootObject;

class IdlePlugin : public NVELKZEV20::IPluginCallbacks {
 public:
  void* GetReserved() override { return nullptr; }
  std::string GetDisplayName() override { return {}; }
  std::string GetVersion() override { return {}; }
  std::string GetFrameworkVersion() override { return {}; }
  void Destroy() override {}
  void Initialize() override {}
  void Deinitialize() override {}
};

class PluginManagerTest : public PlatformTest {};

boost::shared_ptr<TPluginManagerNamespace> Manager() {
  return boost::dynamic_pointer_cast<TPluginManagerNamespace>(TRootObject::GetPluginManager());
}

TEST_F(PluginManagerTest, KeepsThePluginThatRegisters) {
  EXPECT_EQ(RegisteredPlugin(), nullptr);
  IdlePlugin plugin;
  EXPECT_NE(Manager()->RegisterPlugin(&plugin), nullptr);
  EXPECT_EQ(RegisteredPlugin(), &plugin);
  ForgetPlugin();
  EXPECT_EQ(RegisteredPlugin(), nullptr);
}

TEST_F(PluginManagerTest, GivesNoProviderWhenItIsToldSo) {
  SetProviderGiven(false);
  IdlePlugin plugin;
  EXPECT_EQ(Manager()->RegisterPlugin(&plugin), nullptr);
  EXPECT_EQ(RegisteredPlugin(), &plugin);
}

TEST_F(PluginManagerTest, CanBeNoPluginManagerOrNothingAtAll) {
  SetManagerAnswer(ManagerAnswer::PlainNamespace);
  EXPECT_TRUE(TRootObject::GetPluginManager());
  EXPECT_FALSE(Manager());
  SetManagerAnswer(ManagerAnswer::Empty);
  EXPECT_FALSE(TRootObject::GetPluginManager());
}

TEST_F(PluginManagerTest, CountsTheHandlesThatAreHeld) {
  EXPECT_EQ(ManagerHandlesHeld(), 0);
  {
    const auto manager = TRootObject::GetPluginManager();
    const auto again = Manager();
    EXPECT_EQ(ManagerHandlesHeld(), 2);
    SetManagerAnswer(ManagerAnswer::PlainNamespace);
    const auto plain = TRootObject::GetPluginManager();
    EXPECT_EQ(ManagerHandlesHeld(), 3);
  }
  EXPECT_EQ(ManagerHandlesHeld(), 0);
}

TEST_F(PluginManagerTest, HasNoClasses) {
  for (const ManagerAnswer answer : {ManagerAnswer::Manager, ManagerAnswer::PlainNamespace}) {
    SetManagerAnswer(answer);
    boost::shared_ptr<ICIMClass> cimClass;
    TRootObject::GetPluginManager()->GetClass(cimClass, "VELKSG_SP_ComputerSystem", {});
    EXPECT_FALSE(cimClass);
  }
}

}  // namespace
}  // namespace strake::platform
