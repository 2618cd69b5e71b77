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

// A query, how many calls it makes, and how many allocations at least.
struct Sweep {
  const char* name;
  const char* server;
  const char* query;
  long calls;
  long allocations;
  // Shards of a long sweep run side by side; each takes every n-th call.
  int shard = 0;
  int shards = 1;

  [[nodiscard]] bool Takes(long place) const { return place % shards == shard; }
};

class FaultSweep : public testing::TestWithParam<Sweep> {
 protected:
  static Collection Query() { return {GetParam().server, GetParam().query}; }
};

TEST_P(FaultSweep, AnyFailingCallLeavesNothingBehindAndTheObjectUsable) {
  const Collection collection = Query();
  ASSERT_EQ(collection.BoundaryCalls(), GetParam().calls);
  long calls = 0;
  for (long call = 1; call <= collection.BoundaryCalls(); ++call) {
    if (!GetParam().Takes(call)) continue;
    ++calls;
    for (const platform::Fault fault : collection.FaultsOf(call)) {
      EXPECT_EQ(collection.Run({.atCall = call, .fault = fault}), 1) << "the fault is not met";
      ASSERT_FALSE(HasFailure()) << "call " << call << ", fault " << static_cast<int>(fault);
    }
  }
  std::cout << calls << " calls failed\n";
  EXPECT_GE(calls, GetParam().calls / GetParam().shards);
}

TEST_P(FaultSweep, AnyFailingAllocationLeavesNothingBehindAndTheObjectUsable) {
  const Collection collection = Query();
  ASSERT_GE(collection.Allocations(), GetParam().allocations);
  long allocations = 0;
  for (long k = 1; k <= collection.Allocations(); ++k) {
    if (!GetParam().Takes(k)) continue;
    ++allocations;
    EXPECT_EQ(collection.Run({.atAllocation = k}), 1) << "the allocation does not fail";
    ASSERT_FALSE(HasFailure()) << "allocation " << k;
  }
  std::cout << allocations << " allocations failed\n";
  EXPECT_GE(allocations, GetParam().allocations / GetParam().shards);
}

TEST_P(FaultSweep, MemoryThatStaysExhaustedLeavesNothingBehindEither) {
  const Collection collection = Query();
  long starts = 0;
  // Every 17th start is enough here: the sweep above has seen each of them.
  for (long k = 1 + 17 * GetParam().shard; k <= collection.Allocations();
       k += 17L * GetParam().shards) {
    EXPECT_GE(collection.Run({.atAllocation = k, .allAllocationsAfter = true}), 1)
        << "the allocation does not fail";
    ++starts;
    ASSERT_FALSE(HasFailure()) << "allocation " << k;
  }
  std::cout << starts << " allocations failed, and those behind them\n";
  EXPECT_GE(starts, 1);
}

std::string SweepName(const testing::TestParamInfo<Sweep>& sweep) { return sweep.param.name; }

INSTANTIATE_TEST_SUITE_P(Orlo, FaultSweep,
                         testing::Values(Sweep{"Network", "demo-orlo", "network", 788, 100},
                                         Sweep{"Dial", "demo-orlo", "dial", 1148, 200},
                                         Sweep{"Sensors1", "demo-orlo", "sensors", 2043, 600, 0, 3},
                                         Sweep{"Sensors2", "demo-orlo", "sensors", 2043, 600, 1, 3},
                                         Sweep{"Sensors3", "demo-orlo", "sensors", 2043, 600, 2, 3},
                                         Sweep{"System", "demo-orlo", "system", 51, 15}),
                         SweepName);
INSTANTIATE_TEST_SUITE_P(Tavit, FaultSweep,
                         testing::Values(Sweep{"Sensors", "demo-tavit", "sensors", 563, 150},
                                         Sweep{"System", "demo-tavit", "system", 18, 1}),
                         SweepName);

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
