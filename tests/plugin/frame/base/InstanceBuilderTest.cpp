// Identity and the way an instance is made.
#include "platform/hostcore/HostControl.h"
#include "platform/hostcore/Repository.h"
#include "platform/server/HostSettings.h"
#include "plugin/frame/base/InstanceBuilder.h"
#include "tests/support/Recorder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

class InstanceBuilderTest : public testing::Test {
 protected:
  InstanceBuilderTest() {
    platform::SetHost({});
    platform::SetHostObserver(&fRecord);
  }
  ~InstanceBuilderTest() override { platform::SetHostObserver(nullptr); }
  InstanceBuilderTest(const InstanceBuilderTest&) = delete;
  InstanceBuilderTest& operator=(const InstanceBuilderTest&) = delete;

  Recorder fRecord;
  boost::shared_ptr<NVELKZEV20::ICIMNamespace> fNamespace{new platform::Repository};
  NVELKZEV20::ContextMap fContext = MakeContext();
};

constexpr IdentityProperty kOrder[] = {
    IdentityProperty::SystemName, IdentityProperty::Name, IdentityProperty::CreationClassName,
    IdentityProperty::SystemCreationClassName, IdentityProperty::SourceNode};
constexpr InstanceKind kKind = {kDialProtocolEndpoint4, kDialProtocolEndpoint, kOrder};

TEST_F(InstanceBuilderTest, SetsTheIdentityInTheKindsOrderAndCommits) {
  const std::string name = "Unknown MTM-Node3";
  const std::string systemName = "Unknown SystemName";
  const InstanceBuilder instance(kKind, {fNamespace, fContext, name, systemName, NodeNumber(2)});
  instance.IdentifyAll();
  instance.Commit();
  EXPECT_EQ(
      fRecord.All(),
      (Lines{"GetClass VELKSG_ServProc_DialProtocolEndpoint4",
             "CreateInstance 1 VELKSG_ServProc_DialProtocolEndpoint4",
             "Set 1 SystemName string Unknown SystemName", "Set 1 Name string Unknown MTM-Node3",
             "Set 1 CreationClassName string VELKSG_ServProc_DialProtocolEndpoint",
             "GetSystemCreationClassName -> CIM_ComputerSystem",
             "Set 1 SystemCreationClassName string CIM_ComputerSystem", "Set 1 SourceNode uint8 3",
             "Commit 1"}));
}

TEST_F(InstanceBuilderTest, TwoBuildersAtATimeFillTheirOwnInstances) {
  constexpr IdentityProperty kName[] = {IdentityProperty::Name};
  const InstanceKind kind = {kDialProtocolEndpoint4, kDialProtocolEndpoint4, kName};
  const std::string firstName = "first";
  const std::string secondName = "second";
  const InstanceBuilder first(kind, {fNamespace, fContext, firstName, firstName, 1});
  const InstanceBuilder second(kind, {fNamespace, fContext, secondName, secondName, 2});
  second.IdentifyAll();
  first.IdentifyAll();
  second.Commit();
  first.Commit();
  EXPECT_EQ(fRecord.Beginning({"Set", "Commit"}),
            (Lines{"Set 2 Name string second", "Set 1 Name string first", "Commit 2", "Commit 1"}));
}

TEST_F(InstanceBuilderTest, TheNodeNumberWrapsInEightBits) {
  EXPECT_EQ(NodeNumber(0), 1);
  EXPECT_EQ(NodeNumber(254), 255);
  EXPECT_EQ(NodeNumber(255), 0);
}

TEST_F(InstanceBuilderTest, AnEmptyNamespaceOrClassReachesTheHostsAssertion) {
  const std::string name = "name";
  const boost::shared_ptr<NVELKZEV20::ICIMNamespace> nowhere;
  EXPECT_THROW(InstanceBuilder(kKind, {nowhere, fContext, name, name, 1}),
               platform::AssertionError);
  constexpr InstanceKind kUnknown = {"CIM_Unknown", "CIM_Unknown"};
  EXPECT_THROW(InstanceBuilder(kUnknown, {fNamespace, fContext, name, name, 1}),
               platform::AssertionError);
}

}  // namespace
}  // namespace strake::tests
