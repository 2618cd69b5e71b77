#include "cim/TCIMValueContent.h"
#include "plugin/host/Handle.h"
#include "plugin/host/TCIMSchemaHelper.h"
#include "plugin/host/TOSSpecific.h"
#include "plugin/host/TRootObject.h"
#include "plugin/host/TZEVStatusCode.h"
#include "tests/platform/TestServer.h"

#include <ctime>

namespace strake::platform {
namespace {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::TCIMDateTime;
using NVELKZEV20::TCIMSchemaHelper;
using NVELKZEV20::TCIMValue;
using NVELKZEV20::TCIMValueContent;
using NVELKZEV20::TOSSpecific;
using NVELKZEV20::TRootObject;

class HostCallsTest : public PlatformTest {
 protected:
  FaultyTrace fTrace;
};

using Lines = std::vector<std::string>;

TEST_F(HostCallsTest, GiveTheirDefaults) {
  EXPECT_EQ(TOSSpecific::GetMachineTypeFromID(), "9999-AC1");
  EXPECT_EQ(TCIMSchemaHelper::GetSystemName({}), "SRV1");
  EXPECT_EQ(TCIMSchemaHelper::GetSystemCreationClassName({}), "CIM_ComputerSystem");
  EXPECT_FALSE(TCIMSchemaHelper::kContextName.empty());
  EXPECT_FALSE(TCIMSchemaHelper::kPluginNSPName.empty());
}

TEST_F(HostCallsTest, TellOfTheirResults) {
  SetHostObserver(&fTrace);
  TOSSpecific::GetMachineTypeFromID();
  TCIMSchemaHelper::GetSystemName({});
  TCIMSchemaHelper::GetSystemCreationClassName({});
  TOSSpecific::GetLocalTime();
  EXPECT_EQ(
      fTrace.TakeLines(),
      (Lines{
          R"({"event":"host","call":"GetMachineTypeFromID","result":"9999-AC1"})",
          R"({"event":"host","call":"GetSystemName","result":"SRV1"})",
          R"({"event":"host","call":"GetSystemCreationClassName","result":"CIM_ComputerSystem"})",
          R"({"event":"host","call":"GetLocalTime"})"}));
}

TEST_F(HostCallsTest, ThrowWhereTheServerSaysSo) {
  SetHost({.machineTypeModel = {"no bios", true}, .systemName = {"no name", true}});
  SetHostObserver(&fTrace);
  EXPECT_EQ(TextThrownBy([] { TOSSpecific::GetMachineTypeFromID(); }), "no bios");
  EXPECT_EQ(TextThrownBy([] { TCIMSchemaHelper::GetSystemName({}); }), "no name");
  EXPECT_EQ(fTrace.TakeLines(),
            (Lines{R"({"event":"host","call":"GetMachineTypeFromID","throws":"no bios"})",
                   R"({"event":"host","call":"GetSystemName","throws":"no name"})"}));
}

TEST_F(HostCallsTest, TellOfInjectedExceptions) {
  SetHostObserver(&fTrace);
  fTrace.Inject(BoundaryCall::GetSystemName, Fault::StandardException);
  EXPECT_EQ(TextThrownBy([] { TCIMSchemaHelper::GetSystemName({}); }), "injected fault");
  fTrace.Inject(BoundaryCall::GetSystemName, Fault::OtherException);
  EXPECT_THROW(TCIMSchemaHelper::GetSystemName({}), int);
  EXPECT_EQ(fTrace.TakeLines(),
            (Lines{R"({"event":"host","call":"GetSystemName","throws":"injected fault"})",
                   R"({"event":"host","call":"GetSystemName","throws":"unknown exception"})"}));
  fTrace.Inject(BoundaryCall::GetSystemCreationClassName, Fault::StandardException);
  EXPECT_ANY_THROW(TCIMSchemaHelper::GetSystemCreationClassName({}));
  fTrace.Inject(BoundaryCall::GetLocalTime, Fault::StandardException);
  EXPECT_ANY_THROW(TOSSpecific::GetLocalTime());
  EXPECT_TRUE(fTrace.TakeLines().empty());
}

TEST_F(HostCallsTest, GiveTheTimeThatTheServerSays) {
  TCIMDateTime noon;
  noon.Set(2010, 6, 15, 12, 0, 0, 0, 60);
  SetHost({.localTime = noon});
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString(), "20100615120000.000000+060");
}

TEST_F(HostCallsTest, GiveTheRealLocalTimeOtherwise) {
  const std::string earlier = TOSSpecific::GetLocalTime().ToString();
  std::array<char, 16> year{};
  const std::time_t now = std::time(nullptr);
  const std::tm local = *std::localtime(&now);
  std::strftime(year.data(), year.size(), "%Y%m%d%H%M%S", &local);
  const std::string later = TOSSpecific::GetLocalTime().ToString();
  EXPECT_LE(earlier.substr(0, 14), std::string(year.data()));
  EXPECT_GE(later.substr(0, 14), std::string(year.data()));
}

TEST_F(HostCallsTest, CarryLogLinesToTheObserverAndThenToTheSink) {
  std::vector<std::string> kept;
  SetHostObserver(&fTrace);
  SetLogSink([&](int level, const std::string& message) {
    kept.push_back(std::to_string(level) + ' ' + message);
  });
  TRootObject::GetCoreLogger()->Log(3, "a line");
  fTrace.Inject(BoundaryCall::Log, Fault::StandardException);
  EXPECT_ANY_THROW(TRootObject::GetCoreLogger()->Log(2, "lost"));
  EXPECT_EQ(kept, Lines{"3 a line"});
  EXPECT_EQ(fTrace.TakeLines(), Lines{R"({"event":"log","level":3,"message":"a line"})"});
  SetLogSink({});
  SetHostObserver(nullptr);
  TRootObject::GetCoreLogger()->Log(3, "nobody listens");
  EXPECT_EQ(kept.size(), 1U);
}

TEST(HostValues, HoldTheTypeThatTheyWereMadeFrom) {
  EXPECT_EQ(TCIMValueContent::Of(TCIMValue()).index(), 0U);
  EXPECT_EQ(std::get<std::string>(TCIMValueContent::Of(TCIMValue(std::string("a\0b", 3)))),
            std::string("a\0b", 3));
  EXPECT_EQ(std::get<std::string>(TCIMValueContent::Of(TCIMValue("text"))), "text");
  EXPECT_EQ(std::get<std::int32_t>(TCIMValueContent::Of(TCIMValue(-5))), -5);
  EXPECT_EQ(
      std::get<std::uint16_t>(TCIMValueContent::Of(TCIMValue(static_cast<unsigned short>(65535)))),
      65535);
  EXPECT_EQ(
      std::get<std::uint8_t>(TCIMValueContent::Of(TCIMValue(static_cast<unsigned char>(255)))),
      255);
  TCIMValue value(1);
  const TCIMValue other(TCIMDateTime{});
  value = other;
  EXPECT_EQ(std::get<TCIMDateTime>(TCIMValueContent::Of(TCIMValue(value))).ToString(),
            "00000000000000.000000+000");
  EXPECT_EQ(NVELKZEV20::TZEVStatusCode(NVELKZEV20::kZEVSuccess).Code(), 0);
}

TEST(HostAssertions, NameExpressionFunctionAndLine) {
  EXPECT_EQ(TextThrownBy<AssertionError>(
                [] { boost::assertion_failed("px != 0", "int F()", "file.h", 315); }),
            "px != 0 failed in int F(), line 315");
  const std::string text =
      TextThrownBy<AssertionError>([] { Deref(boost::shared_ptr<ICIMNamespace>()); });
  EXPECT_TRUE(text.starts_with("px != 0 failed in ")) << text;
  EXPECT_TRUE(text.ends_with(", line 315")) << text;
}

class OpenNamespace : public ICIMNamespace {
  void GetClass(boost::shared_ptr<ICIMClass>& /*cimClass*/, const std::string& /*name*/,
                NVELKZEV20::ContextMap /*context*/) override {}
};
class OpenClass : public ICIMClass {
  [[nodiscard]] std::string GetName() const override { return {}; }
  void CreateInstance(boost::shared_ptr<ICIMInstance>& /*instance*/,
                      const NVELKZEV20::TNameToValueMap& /*options*/) override {}
};
class OpenInstance : public ICIMInstance {
  void Commit(NVELKZEV20::TNameToValueMap /*options*/) override {}
  void SetProperty(const std::string& /*name*/, const TCIMValue& /*value*/,
                   NVELKZEV20::TNameToValueMap /*qualifiers*/) override {}
};

template <typename Interface>
void ExpectReserved(Interface& object, const char* name,
                    const std::vector<std::pair<int, void (Interface::*)()>>& slots) {
  for (const auto& slot : slots) {
    EXPECT_EQ(TextThrownBy<std::logic_error>([&] { (object.*slot.second)(); }),
              std::string(name) + " slot " + std::to_string(slot.first) + " is reserved");
  }
}

TEST(ReservedSlots, SayWhichSlotWasCalled) {
  OpenNamespace cimNamespace;
  ExpectReserved<ICIMNamespace>(cimNamespace, "ICIMNamespace",
                                {{1, &ICIMNamespace::ReservedSlot1},
                                 {2, &ICIMNamespace::ReservedSlot2},
                                 {3, &ICIMNamespace::ReservedSlot3},
                                 {4, &ICIMNamespace::ReservedSlot4}});
  OpenClass cimClass;
  ExpectReserved<ICIMClass>(cimClass, "ICIMClass",
                            {{1, &ICIMClass::ReservedSlot1},   {2, &ICIMClass::ReservedSlot2},
                             {3, &ICIMClass::ReservedSlot3},   {4, &ICIMClass::ReservedSlot4},
                             {6, &ICIMClass::ReservedSlot6},   {7, &ICIMClass::ReservedSlot7},
                             {8, &ICIMClass::ReservedSlot8},   {9, &ICIMClass::ReservedSlot9},
                             {10, &ICIMClass::ReservedSlot10}, {11, &ICIMClass::ReservedSlot11},
                             {12, &ICIMClass::ReservedSlot12}, {13, &ICIMClass::ReservedSlot13},
                             {14, &ICIMClass::ReservedSlot14}, {15, &ICIMClass::ReservedSlot15},
                             {16, &ICIMClass::ReservedSlot16}, {17, &ICIMClass::ReservedSlot17},
                             {18, &ICIMClass::ReservedSlot18}, {19, &ICIMClass::ReservedSlot19},
                             {20, &ICIMClass::ReservedSlot20}, {21, &ICIMClass::ReservedSlot21}});
  OpenInstance instance;
  ExpectReserved<ICIMInstance>(instance, "ICIMInstance",
                               {{1, &ICIMInstance::ReservedSlot1},
                                {3, &ICIMInstance::ReservedSlot3},
                                {4, &ICIMInstance::ReservedSlot4},
                                {5, &ICIMInstance::ReservedSlot5},
                                {6, &ICIMInstance::ReservedSlot6},
                                {7, &ICIMInstance::ReservedSlot7},
                                {8, &ICIMInstance::ReservedSlot8},
                                {9, &ICIMInstance::ReservedSlot9},
                                {10, &ICIMInstance::ReservedSlot10}});
}

}  // namespace
}  // namespace strake::platform
