// One process of several, here a shell's.
#include "app/ServerProcess.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/resource.h>
#include <unistd.h>

namespace strake::tests {
namespace {

using app::ServerProcess;

// Why the script brought no report, and what standard error was told.
struct Failed {
  std::string text;
  std::string told;
  bool operator==(const Failed&) const = default;
};

Failed FailureOf(const ServerProcess::Plan& plan, ServerProcess::Clock::duration held = {}) {
  ServerProcess process(plan);
  testing::internal::CaptureStderr();
  EXPECT_TRUE(process.Start(false));
  process.Postpone(held);
  while (!process.HasEnded()) {
    ServerProcess* const running[] = {&process};
    ServerProcess::Wait(running);
  }
  const std::string told = testing::internal::GetCapturedStderr();
  EXPECT_EQ(process.Status(), 1);
  return {nlohmann::json::parse(process.Line()).at("error"), told};
}

ServerProcess::Plan Script(const std::string& script) {
  return {"/bin/sh", "dir/server", "1.2.3", {"-c", script}, std::nullopt};
}

TEST(ServerProcess, FailsWithTheLastThingThatTheCommandSaid) {
  const struct {
    std::string script;
    Failed failed;
  } cases[] = {
      {"echo strake: why >&2; exit 2", {"why", "strake: dir/server: why\n"}},
      {"echo strake: dir/server: why >&2; exit 1",
       {"dir/server: why", "strake: dir/server: why\n"}},
      {"echo strake: first >&2; echo strake: why >&2; exit 1",
       {"why", "strake: dir/server: first\nstrake: dir/server: why\n"}},
      // Something followed it.
      {"echo strake: first >&2; echo '[1] last' >&2; exit 1",
       {"its process ended with status 1",
        "strake: dir/server: first\ndir/server: [1] last\n"
        "strake: dir/server: its process ended with status 1\n"}},
      {"echo strake: warning: w >&2; exit 5",
       {"its process ended with status 5",
        "strake: dir/server: warning: w\nstrake: dir/server: its process ended with status 5\n"}},
      // It says nothing of how the process ended.
      {"echo strake: text >&2; kill -9 $$",
       {"its process was ended by signal 9 (Killed)",
        "strake: dir/server: text\n"
        "strake: dir/server: its process was ended by signal 9 (Killed)\n"}},
  };
  for (const auto& one : cases) {
    const Failed failed = FailureOf(Script(one.script));
    EXPECT_EQ(failed.text, one.failed.text) << one.script;
    EXPECT_EQ(failed.told, one.failed.told) << one.script;
  }
}

TEST(ServerProcess, FailsWhereItCannotBeStarted) {
  ServerProcess::Plan plan = Script("exit 0");
  plan.command = "/nowhere/strake";
  const std::string text = "its process could not be started: No such file or directory";
  EXPECT_EQ(FailureOf(plan), (Failed{text, "strake: dir/server: " + text + "\n"}));
}

TEST(ServerProcess, HasNoMoreTimeThanItIsGivenAndIsNotChargedForBeingHeld) {
  ServerProcess::Plan plan = Script("sleep 0.05; exit 7");
  plan.timeout = std::chrono::milliseconds(1);
  EXPECT_EQ(FailureOf(plan).text, "timed out after 1ms");
  EXPECT_EQ(FailureOf(plan, std::chrono::hours(1)).text, "its process ended with status 7");
}

TEST(ServerProcess, IsGivenItsServerBehindTheWords) {
  ServerProcess::Plan plan = Script("echo strake: \"$0\" >&2; exit 1");
  plan.server = "a b";
  EXPECT_EQ(FailureOf(plan).text, "--server=a b");
}

// Of an escaped name, too.
TEST(ServerProcess, IsNamedOnceWhateverItsName) {
  ServerProcess::Plan plan = Script("printf 'strake: a\\\\nb: why\\n' >&2; exit 2");
  plan.server = "a\nb";
  EXPECT_EQ(FailureOf(plan), (Failed{"a\\nb: why", "strake: a\\nb: why\n"}));
}

TEST(ServerProcess, WaitsForOthersWhenThereIsNoRoomForIt) {
  ServerProcess process(Script("exit 1"));
  const int next = ::dup(STDIN_FILENO);
  ::close(next);
  rlimit before{};
  ::getrlimit(RLIMIT_NOFILE, &before);
  // Room for some of its descriptors: a sanitizer opens two when it looks at memory.
  const rlimit few{static_cast<rlim_t>(next) + 3, before.rlim_max};
  ::setrlimit(RLIMIT_NOFILE, &few);
  const bool isStarted = process.Start(true);
  ::setrlimit(RLIMIT_NOFILE, &before);
  EXPECT_FALSE(isStarted);
  EXPECT_FALSE(process.HasEnded());
  EXPECT_TRUE(process.Start(true));
}

}  // namespace
}  // namespace strake::tests
