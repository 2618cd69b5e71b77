// Identity and the way an instance is made.
#include "platform/hostcore/HostControl.h"
#include "platform/hostcore/Repository.h"
#include "plugin/config/InstanceBuilder.h"
#include "plugin/config/ServiceProcessor.h"
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
};

constexpr IdentityProperty kOrder[] = {
    IdentityProperty::SystemName, IdentityProperty::Name, IdentityProperty::CreationClassName,
    IdentityProperty::SystemCreationClassName, IdentityProperty::SourceNode};
constexpr InstanceKind kKind = {kDialProtocolEndpoint4, kDialProtocolEndpoint, kOrder};

TEST_F(InstanceBuilderTest, SetsTheIdentityInTheKindsOrderAndCommits) {
  const ServiceProcessor sp(fNamespace, nullptr, "Unknown MTM", "Unknown SystemName", 2);
  InstanceBuilder instance(kKind, sp.Identity());
  instance.Create(sp.Number());
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

TEST_F(InstanceBuilderTest, TheNodeNumberWrapsInEightBits) {
  const ServiceProcessor sp(fNamespace, nullptr, "MTM", "SYS", 255);
  EXPECT_EQ(sp.nodeName, "MTM-Node0");
  EXPECT_EQ(sp.Number(), 0);
}

TEST_F(InstanceBuilderTest, AnEmptyNamespaceOrClassReachesTheHostsAssertion) {
  const ServiceProcessor nowhere({}, nullptr, "MTM", "SYS", 0);
  EXPECT_THROW(InstanceBuilder(kKind, nowhere.Identity()).Create(1), platform::AssertionError);
  constexpr InstanceKind kUnknown = {"CIM_Unknown", "CIM_Unknown"};
  const ServiceProcessor sp(fNamespace, nullptr, "MTM", "SYS", 0);
  EXPECT_THROW(InstanceBuilder(kUnknown, sp.Identity()).Create(1), platform::AssertionError);
}

}  // namespace
}  // namespace strake::tests
