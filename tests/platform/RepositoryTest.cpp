#include "cim/EqualKeys.h"
#include "platform/hostcore/Repository.h"
#include "tests/platform/TestServer.h"

#include <boost/make_shared.hpp>

namespace strake::platform {
namespace {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::TCIMDateTime;
using NVELKZEV20::TCIMValue;
using ClassHandle = boost::shared_ptr<ICIMClass>;
using InstanceHandle = boost::shared_ptr<ICIMInstance>;

constexpr const char* kSystem = "VELKSG_SP_ComputerSystem";
constexpr const char* kSensor = "VELKSG_SP_NumericSensor";

class RepositoryTest : public PlatformTest {
 protected:
  ClassHandle Class(const std::string& name) {
    ClassHandle handle;
    fRepository.GetClass(handle, name, {});
    return handle;
  }
  InstanceHandle Instance(const std::string& className) {
    InstanceHandle handle;
    Class(className)->CreateInstance(handle, {});
    return handle;
  }
  void CommitSystem(unsigned char node, const std::string& name) {
    const InstanceHandle instance = Instance(kSystem);
    instance->SetProperty("SourceNode", node, {});
    instance->SetProperty("Name", name, {});
    instance->Commit({});
  }

  Repository fRepository;
};

TEST_F(RepositoryTest, FindsAClassOfTheSchemaByItsName) {
  const ClassHandle handle = Class(kSystem);
  ASSERT_TRUE(handle);
  EXPECT_EQ(handle->GetName(), kSystem);
}

TEST_F(RepositoryTest, LeavesTheHandleEmptyForAnUnknownClass) {
  ClassHandle handle = Class(kSystem);
  fRepository.GetClass(handle, "VELKSG_Unknown", {});
  EXPECT_FALSE(handle);
}

TEST_F(RepositoryTest, HandsOutRequestedClassesOfAnyName) {
  for (const char* name : {kSystem, "VELKSG_Unknown", ""}) {
    EXPECT_EQ(fRepository.RequestedClass(name)->GetName(), name);
  }
  InstanceHandle instance;
  EXPECT_EQ(
      TextThrownBy([&] { fRepository.RequestedClass("Other")->CreateInstance(instance, {}); }),
      "there is no class Other to make an instance of");
}

TEST_F(RepositoryTest, KeepsInstancesInCommitOrderWithTheirNumbers) {
  const InstanceHandle first = Instance(kSystem);
  const InstanceHandle second = Instance(kSensor);
  EXPECT_TRUE(fRepository.Committed().empty());
  second->Commit({});
  first->Commit({});
  ASSERT_EQ(fRepository.Committed().size(), 2U);
  EXPECT_EQ(fRepository.Committed()[0].schema->name, kSensor);
  EXPECT_EQ(fRepository.Committed()[0].number, 2U);
  EXPECT_EQ(fRepository.Committed()[1].schema->name, kSystem);
  EXPECT_EQ(fRepository.Committed()[1].number, 1U);
}

TEST_F(RepositoryTest, KeepsPropertiesInTheOrderInWhichTheyWereSet) {
  const InstanceHandle instance = Instance(kSensor);
  instance->SetProperty("UnitModifier", -2, {});
  instance->SetProperty("BaseUnits", static_cast<unsigned short>(5), {});
  instance->SetProperty("DeviceID", "Fan", {});
  instance->SetProperty("UnitModifier", -3, {});
  instance->Commit({});
  const cim::StoredInstance& stored = fRepository.Committed().front();
  ASSERT_EQ(stored.properties.size(), 3U);
  EXPECT_EQ(stored.properties[0].schema->name, "UnitModifier");
  // Set twice: the value is the last one, the place the first one.
  EXPECT_EQ(std::get<std::int32_t>(stored.properties[0].value), -3);
  EXPECT_EQ(stored.properties[1].schema->name, "BaseUnits");
  EXPECT_EQ(stored.properties[2].schema->name, "DeviceID");
}

TEST_F(RepositoryTest, RefusesWhatTheSchemaDoesNotHave) {
  const struct {
    const char* className;
    const char* property;
    TCIMValue value;
    const char* message;
  } cases[] = {
      {kSystem, "Instance", "1",
       "class VELKSG_SP_ComputerSystem has no property Instance of type string"},
      {kSystem, "", 5, "class VELKSG_SP_ComputerSystem has no property  of type sint32"},
      {kSystem, "SourceNode", 1,
       "property SourceNode of class VELKSG_SP_ComputerSystem has type uint8, not sint32"},
      {kSystem, "SourceNode", static_cast<unsigned short>(1),
       "property SourceNode of class VELKSG_SP_ComputerSystem has type uint8, not uint16"},
      {kSystem, "SPClock", "now",
       "property SPClock of class VELKSG_SP_ComputerSystem has type datetime, not string"},
      {kSystem, "Name", TCIMDateTime(),
       "property Name of class VELKSG_SP_ComputerSystem has type string, not datetime"},
      {kSensor, "BaseUnits", static_cast<unsigned char>(5),
       "property BaseUnits of class VELKSG_SP_NumericSensor has type uint16, not uint8"},
      {kSensor, "Name", "x", "class VELKSG_SP_NumericSensor has no property Name of type string"},
      {"VELKSG_ServProc_IPProtocolEndpoint", "LineType", "PPP",
       "class VELKSG_ServProc_IPProtocolEndpoint has no property LineType of type string"},
      {kSystem, "Name", TCIMValue(), "property Name was given an empty value"},
  };
  for (const auto& one : cases) {
    const InstanceHandle instance = Instance(one.className);
    EXPECT_EQ(TextThrownBy([&] { instance->SetProperty(one.property, one.value, {}); }),
              one.message);
    instance->Commit({});
    EXPECT_TRUE(fRepository.Committed().back().properties.empty());
  }
}

TEST_F(RepositoryTest, TellsTheObserverOfAPropertyBeforeItIsRefused) {
  FaultyTrace trace;
  SetHostObserver(&trace);
  const InstanceHandle instance = Instance(kSystem);
  trace.TakeLines();
  EXPECT_ANY_THROW(instance->SetProperty("SourceNode", 300, {}));
  EXPECT_EQ(trace.TakeLines(),
            std::vector<std::string>{R"({"event":"host","call":"SetProperty","instance":1,)"
                                     R"("name":"SourceNode","type":"sint32","value":300})"});
}

TEST_F(RepositoryTest, TakesNothingMoreOnceAnInstanceIsCommitted) {
  const InstanceHandle instance = Instance(kSystem);
  instance->SetProperty("Name", "a", {});
  instance->Commit({});
  EXPECT_EQ(TextThrownBy<std::logic_error>([&] { instance->Commit({}); }),
            "instance 1 of VELKSG_SP_ComputerSystem is committed and cannot be committed again");
  EXPECT_EQ(TextThrownBy<std::logic_error>([&] { instance->SetProperty("Name", "b", {}); }),
            "instance 1 of VELKSG_SP_ComputerSystem is committed and cannot take property Name");
  ASSERT_EQ(fRepository.Committed().size(), 1U);
  EXPECT_EQ(std::get<std::string>(fRepository.Committed()[0].properties.at(0).value), "a");
}

TEST_F(RepositoryTest, CopiesTheValuesThatItIsGiven) {
  const InstanceHandle instance = Instance(kSystem);
  {
    const TCIMValue value(std::string(100, 'x'));
    instance->SetProperty("Name", value, {});
  }
  instance->Commit({});
  EXPECT_EQ(std::get<std::string>(fRepository.Committed()[0].properties.at(0).value),
            std::string(100, 'x'));
}

TEST_F(RepositoryTest, LetsItsClassesAndInstancesOutliveIt) {
  auto shortLived = boost::make_shared<Repository>();
  ClassHandle cimClass;
  shortLived->GetClass(cimClass, kSystem, {});
  InstanceHandle instance;
  cimClass->CreateInstance(instance, {});
  EXPECT_EQ(shortLived->HandlesHeld(), 2);
  shortLived.reset();
  instance->SetProperty("Name", "late", {});
  instance->Commit({});
  EXPECT_EQ(cimClass->GetName(), kSystem);
}

TEST_F(RepositoryTest, CountsTheHandlesThatAreHeld) {
  EXPECT_EQ(fRepository.HandlesHeld(), 0);
  {
    const InstanceHandle instance = Instance(kSystem);
    EXPECT_EQ(fRepository.HandlesHeld(), 1);
  }
  EXPECT_EQ(fRepository.HandlesHeld(), 0);
}

TEST_F(RepositoryTest, KeepsInstancesWithEqualKeysAndReportsThem) {
  CommitSystem(1, "A");
  CommitSystem(1, "B");
  CommitSystem(2, "A");
  CommitSystem(1, "B");
  CommitSystem(1, "B");
  Instance(kSensor)->Commit({});
  Instance(kSensor)->Commit({});
  EXPECT_EQ(fRepository.Committed().size(), 7U);
  const std::vector<cim::EqualKeys> groups = cim::FindEqualKeys(fRepository.Committed());
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_EQ(groups[0].schema->name, kSystem);
  EXPECT_EQ(groups[0].keys, "SourceNode=1, Name=B");
  EXPECT_EQ(groups[0].count, 3U);
  EXPECT_EQ(groups[1].schema->name, kSensor);
  EXPECT_EQ(groups[1].keys, "");
  EXPECT_EQ(groups[1].count, 2U);
}

TEST_F(RepositoryTest, DoesNotTakeAMissingKeyForAnEmptyOne) {
  Instance(kSystem)->Commit({});
  const InstanceHandle instance = Instance(kSystem);
  instance->SetProperty("Name", "", {});
  instance->Commit({});
  EXPECT_TRUE(cim::FindEqualKeys(fRepository.Committed()).empty());
}

TEST_F(RepositoryTest, ShowsInjectedFaultsWithoutDoingTheWork) {
  FaultyTrace trace;
  SetHostObserver(&trace);
  const ClassHandle cimClass = Class(kSystem);
  const InstanceHandle instance = Instance(kSystem);
  trace.TakeLines();

  trace.Inject(BoundaryCall::GetClass, Fault::EmptyHandle);
  EXPECT_FALSE(Class(kSystem));
  EXPECT_EQ(
      trace.TakeLines(),
      std::vector<std::string>{
          R"({"event":"host","call":"GetClass","class":"VELKSG_SP_ComputerSystem","found":false})"});

  trace.Inject(BoundaryCall::CreateInstance, Fault::EmptyHandle);
  InstanceHandle given = instance;
  cimClass->CreateInstance(given, {});
  EXPECT_FALSE(given);

  trace.Inject(BoundaryCall::CreateInstance, Fault::UntouchedHandle);
  given = instance;
  cimClass->CreateInstance(given, {});
  EXPECT_EQ(given, instance);

  trace.Inject(BoundaryCall::GetClass, Fault::UntouchedHandle);
  ClassHandle kept = cimClass;
  fRepository.GetClass(kept, kSystem, {});
  EXPECT_EQ(kept, cimClass);
  EXPECT_EQ(
      trace.TakeLines(),
      std::vector<std::string>{
          R"({"event":"host","call":"GetClass","class":"VELKSG_SP_ComputerSystem","found":false})"});

  // What a call cannot show is no fault.
  trace.Inject(BoundaryCall::GetClass, Fault::SendFails);
  EXPECT_TRUE(Class(kSystem));
  trace.TakeLines();

  const auto injected = [](auto action) { return TextThrownBy<std::runtime_error>(action); };
  for (const BoundaryCall call :
       {BoundaryCall::GetClass, BoundaryCall::CreateInstance, BoundaryCall::SetProperty,
        BoundaryCall::Commit, BoundaryCall::GetName}) {
    trace.Inject(call, Fault::StandardException);
    const auto allCalls = [&] {
      switch (call) {
        case BoundaryCall::GetClass:
          Class(kSystem);
          break;
        case BoundaryCall::CreateInstance:
          cimClass->CreateInstance(given, {});
          break;
        case BoundaryCall::SetProperty:
          instance->SetProperty("Name", "x", {});
          break;
        case BoundaryCall::Commit:
          instance->Commit({});
          break;
        default:
          static_cast<void>(cimClass->GetName());
      }
    };
    EXPECT_EQ(injected(allCalls), "injected fault");
    trace.Inject(call, Fault::OtherException);
    EXPECT_THROW(allCalls(), int);
  }
  EXPECT_TRUE(trace.TakeLines().empty());

  trace.Inject(BoundaryCall::Commit, Fault::SendFails);  // no fault of a commit
  instance->Commit({});
  ASSERT_EQ(fRepository.Committed().size(), 1U);
  EXPECT_TRUE(fRepository.Committed()[0].properties.empty());
}

}  // namespace
}  // namespace strake::platform
