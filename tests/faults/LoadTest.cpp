// A host that loads and detaches the module again and again keeps the memory it
// had, the objects that are left alive on purpose aside.
#include "platform/boundary/TraceWriter.h"
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/session/HostSession.h"
#include "platform/session/PluginModule.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/spaccess/DotIdentifier.h"
#include "tests/support/Heap.h"
#include "tests/support/MaskAddresses.h"
#include "tests/support/Places.h"
#include "tests/support/Scenario.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

constexpr int kWarmUp = 10;
constexpr int kRounds = 1000;

const std::filesystem::path kModule =
    std::filesystem::path(BuildFolder()) / "lib/strake" STRAKE_MODULE_SUFFIX;

// What freed blocks leave in the C library's caches may differ from round to
// round; it must not grow with them.
constexpr std::size_t kCaches = 16384;

// Runs the rounds and expects `blocks` of `size` bytes to be left by each
// behind the warm-up.
template <typename Round>
void ExpectLeft(Round round, long blocks, std::size_t size) {
  Heap before;
  for (int i = 1; i <= kRounds; ++i) {
    round();
    if (i == kWarmUp) {
      before = HeapNow();
    }
  }
  const long left = blocks * (kRounds - kWarmUp);
  const Heap after = HeapNow();
  EXPECT_EQ(after.blocks - before.blocks, left);
  EXPECT_LE(after.bytes - before.bytes,
            static_cast<std::size_t>(left) * HeapBytesOf(size) + kCaches);
  std::cout << left << " objects of " << size << " bytes are left\n";
}

TEST(Load, AThousandLoadsAndDetachesLeaveOnlyThePresenceTestCommands) {
  const Scenario scenario = Scenario::Orlo(2);
  const auto round = [&scenario] {
    const platform::PluginModule module(kModule);
    platform::HostSession session(scenario.server);
    session.Attach(module.Entry());
    session.Initialize();
    session.Query({"VELKSG_SP_ComputerSystem"});
    session.Deinitialize();
    session.Detach();
  };
  // Each command lies with its identifier and its byte of extra data.
  struct Left {
    DotIdentifier identifier;
    unsigned char extraData;
    alignas(dotCmd) std::array<char, sizeof(dotCmd)> command;
  };
  ExpectLeft(round, 2, sizeof(Left));
}

TEST(Load, ThreeHundredLoadsGiveOneTrace) {
  const Scenario scenario = Scenario::Orlo(2);
  std::string first;
  for (int i = 0; i < 300; ++i) {
    std::ostringstream trace;
    platform::TraceWriter writer(trace);
    const platform::PluginModule module(kModule);
    platform::HostSession session(scenario.server, &writer);
    session.Attach(module.Entry());
    session.Initialize();
    session.Query({"VELKSG_SP_ComputerSystem", "VELKSG_SP_NumericSensor"});
    session.Deinitialize();
    session.Detach();
    const std::string text = MaskAddresses(trace.str());
    if (i == 0) {
      first = text;
      EXPECT_NE(first.find("\"query_end\""), std::string::npos);
    }
    ASSERT_EQ(text, first) << "load " << i;
  }
}

TEST(Load, ADetachWithoutDestroyLeavesTheObjectAliveAndNothingElse) {
  // Kept where leak checkers find them: these are left on purpose.
  static std::array<NVELKZEV20::IPluginCallbacks*, kRounds> left{};
  static std::size_t rounds = 0;
  const auto round = [] {
    const platform::PluginModule module(kModule);
    EXPECT_EQ(module.Entry()(1), 1);
    left.at(rounds++) = platform::RegisteredPlugin();
    EXPECT_EQ(module.Entry()(0), 1);
  };
  ExpectLeft(round, 1, sizeof(TStrakePluginCallbacks));
}

}  // namespace
}  // namespace strake::tests
