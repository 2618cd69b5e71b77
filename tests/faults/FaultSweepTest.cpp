// Everything that can fail at the boundary fails once, at every call there is.
#include "platform/pluginmanager/ManagerControl.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/faults/Collection.h"
#include "tests/support/Allocations.h"

#include <gtest/gtest.h>
#include <iostream>
#include <new>

namespace strake::tests {
namespace {

class FaultSweep : public testing::TestWithParam<std::string> {};

TEST_P(FaultSweep, AnyFailingCallLeavesNothingBehindAndTheObjectUsable) {
  const Collection collection(GetParam());
  long runs = 0;
  for (long call = 1; call <= collection.BoundaryCalls(); ++call) {
    for (const platform::Fault fault : collection.FaultsOf(call)) {
      collection.Run({.atCall = call, .fault = fault});
      ++runs;
      ASSERT_FALSE(HasFailure()) << "call " << call << ", fault " << static_cast<int>(fault);
    }
  }
  std::cout << collection.BoundaryCalls() << " calls, " << runs << " runs\n";
}

TEST_P(FaultSweep, AnyFailingAllocationLeavesNothingBehindAndTheObjectUsable) {
  const Collection collection(GetParam());
  for (long k = 1; k <= collection.Allocations(); ++k) {
    collection.Run({.atAllocation = k});
    ASSERT_FALSE(HasFailure()) << "allocation " << k;
  }
  std::cout << collection.Allocations() << " allocations\n";
}

TEST_P(FaultSweep, MemoryThatStaysExhaustedLeavesNothingBehindEither) {
  const Collection collection(GetParam());
  // Every 17th start is enough here: the sweep above has seen each of them.
  for (long k = 1; k <= collection.Allocations(); k += 17) {
    collection.Run({.atAllocation = k, .allAllocationsAfter = true});
    ASSERT_FALSE(HasFailure()) << "allocation " << k;
  }
}

INSTANTIATE_TEST_SUITE_P(Orlo, FaultSweep, testing::Values("demo-orlo"));
INSTANTIATE_TEST_SUITE_P(Tavit, FaultSweep, testing::Values("demo-tavit"));

TEST(AttachFaults, AFailingAllocationOfTheObjectIsAFailedAttach) {
  platform::ForgetPlugin();
  const long before = Allocations::Live();
  Allocations::FailAt(1, false);
  const int result = StrakeModuleEntry(1);
  Allocations::FailNever();
  EXPECT_EQ(result, 0);
  EXPECT_EQ(platform::RegisteredPlugin(), nullptr);
  EXPECT_EQ(Allocations::Live(), before);
}

TEST(AttachFaults, AFailingAllocationInTheConstructorFreesTheStorageAndLeaves) {
  platform::ForgetPlugin();
  for (long k = 2; k < 100; ++k) {
    const long before = Allocations::Live();
    bool hasThrown = false;
    int result = 0;
    Allocations::FailAt(k, false);
    try {
      result = StrakeModuleEntry(1);
    } catch (const std::bad_alloc&) {
      hasThrown = true;
    }
    Allocations::FailNever();
    if (!hasThrown) {
      EXPECT_EQ(result, 1);
      platform::RegisteredPlugin()->Destroy();
      return;
    }
    EXPECT_EQ(Allocations::Live(), before) << k;
    EXPECT_EQ(platform::RegisteredPlugin(), nullptr) << k;
  }
  FAIL() << "attaching never succeeds";
}

}  // namespace
}  // namespace strake::tests
