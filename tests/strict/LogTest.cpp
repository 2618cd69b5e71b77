// Messages belong to whoever logs them: none is shared between lines, none has
// static storage, and each holds while its line is being logged.
#include "tests/strict/Classes.h"

#include <cstdlib>
#include <unistd.h>

namespace strake::strict {
namespace {

constexpr const char* kInitializing = "Initializing Service Processor Configuration Collector";
constexpr const char* kDeinitializing = "De-Initializing Service Processor Configuration Collector";

TEST_P(EveryClass, LogsNoTextWithStaticStorage) {
  host.plugin->Initialize();
  Query();
  host.plugin->Deinitialize();
  ASSERT_GT(host.Count(Call::Log), 20U);
  for (const Event* const line : host.All(Call::Log)) EXPECT_FALSE(line->isStatic) << line->text;
}

TEST_P(EveryClass, LogsLinesThatHoldWhileTheLoggerCallsTheObjectAgain) {
  Query();
  const std::vector<std::string> undisturbed = host.Lines();
  host.events.clear();
  bool isNested = false;
  host.onCall = [&](const Event& event) {
    if (event.call != Call::Log || isNested) return;
    isNested = true;
    host.plugin->Initialize();
    host.plugin->Deinitialize();
    isNested = false;
  };
  Query();
  host.onCall = nullptr;
  std::size_t nested = 0;
  std::size_t lines = 0;
  for (const Event* const line : host.All(Call::Log)) {
    EXPECT_FALSE(line->isChanged) << line->text;
    ++(line->text == kInitializing || line->text == kDeinitializing ? nested : lines);
  }
  EXPECT_EQ(lines, undisturbed.size());
  EXPECT_EQ(nested, 2 * undisturbed.size());
}

TEST_F(OneSP, HasItsStartAndStopToldAtLevel3) {
  host.plugin->Initialize();
  host.plugin->Deinitialize();
  const auto lines = host.All(Call::Log);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0]->text, kInitializing);
  EXPECT_EQ(lines[1]->text, kDeinitializing);
  for (const Event* const line : lines) EXPECT_EQ(line->number, 3);
}

// A part of the host that is there before every static object of the plug-in
// and goes behind them: then it ends the plug-in.
class LastToGo {
 public:
  LastToGo() = default;
  LastToGo(const LastToGo&) = delete;
  LastToGo& operator=(const LastToGo&) = delete;
  ~LastToGo() {
    if (host == nullptr) return;
    host->events.clear();
    host->plugin->Deinitialize();
    const bool isRight = host->events.size() == 1 && host->events[0].text == kDeinitializing &&
                         !host->events[0].isStatic && !host->events[0].isChanged;
    _exit(isRight ? 0 : 3);
  }

  StrictHost* host = nullptr;
};

[[gnu::init_priority(101)]] LastToGo lastToGo;

// Under valgrind or AddressSanitizer a touch of what is gone ends the child
// with another status.
TEST(ProcessExit, IsNotTooLateToDeinitialize) {
  EXPECT_EXIT(
      {
        lastToGo.host = new StrictHost;
        Prepare(*lastToGo.host, CaseOf("TavitSensor"));
        lastToGo.host->Query({kSensor});
        std::exit(4);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace strake::strict
