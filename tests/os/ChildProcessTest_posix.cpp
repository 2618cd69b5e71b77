// Shells beside this process: signals, descriptors, and what outlives whom.
#include "os/ChildProcess.h"
#include "os/Signals.h"
#include "tests/support/Child.h"
#include "tests/support/Processes.h"
#include "tests/support/Said.h"
#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace strake::tests {
namespace {

using Input = os::ChildProcess::Input;
using Words = std::vector<std::string>;

Said Shell(const std::string& script, Input input = Input::None) {
  os::ChildProcess child("/bin/sh", {"-c", script}, input);
  return AllOf(child);
}

// The first line that it writes, which is the number of a process.
pid_t NumberFrom(os::ChildProcess& child) {
  std::string text;
  while (text.find('\n') == std::string::npos && !child.End()) {
    os::ChildProcess* const children[] = {&child};
    os::ChildProcess::Wait(children, std::nullopt);
    text += child.TakeOutput();
  }
  return std::stoi(text);
}

// Says its number and stays.
const Words kStaying = {"-c", "echo $$; exec sleep 600"};

TEST(ChildProcess, SaysWhatItWroteAndHowItEnded) {
  EXPECT_EQ(Shell("echo out; echo err >&2; exit 3"), (Said{"out\n", "err\n", 3, ""}));
  EXPECT_EQ(Shell(":"), (Said{"", "", 0, ""}));
  EXPECT_EQ(Shell("printf out; kill -ABRT $$"), (Said{"out", "", {}, "signal 6 (Aborted)"}));
  EXPECT_EQ(Shell("kill -KILL $$"), (Said{"", "", {}, "signal 9 (Killed)"}));
  // It goes on without them.
  EXPECT_EQ(Shell("exec >&- 2>&-; exit 4"), (Said{"", "", 4, ""}));
}

TEST(ChildProcess, IsGivenItsWordsAsTheyAre) {
  os::ChildProcess child("/bin/sh",
                         {"-c", "printf '%s|' \"$@\"", "name", "", "a b", "$x", "\"'\\", "\n\x01"},
                         Input::None);
  EXPECT_EQ(AllOf(child), (Said{"|a b|$x|\"'\\|\n\x01|", "", 0, ""}));
}

TEST(ChildProcess, ThatCannotBeStartedIsAnError) {
  const TemporaryFolder folder;
  const struct {
    std::string program;
    int error;
  } cases[] = {{folder / "none", ENOENT},
               {folder.Write("text", "no program"), EACCES},
               {folder.Path(), EACCES}};
  for (const auto& one : cases) {
    try {
      const os::ChildProcess child(one.program, {}, Input::None);
      FAIL() << one.program << " was started";
    } catch (const std::system_error& error) {
      EXPECT_EQ(error.code().value(), one.error) << one.program;
    }
  }
}

TEST(ChildProcess, LosesNothingOfMuchThatIsWritten) {
  const Said said = Shell("head -c 1000000 /dev/zero; head -c 900000 /dev/zero >&2");
  EXPECT_TRUE(said.out == std::string(1000000, '\0'));
  EXPECT_TRUE(said.err == std::string(900000, '\0'));
}

TEST(ChildProcess, ReadsWhatThisProcessWouldOnlyWhereThatIsSaid) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("input", "text");
  for (const Input input : {Input::None, Input::Own}) {
    EXPECT_EQ(InChild([&] {
                ::dup2(::open(file.c_str(), O_RDONLY | O_CLOEXEC), STDIN_FILENO);
                return Shell("cat", input).out;
              }),
              (ChildEnd{0, input == Input::Own ? "text" : ""}));
  }
}

TEST(ChildProcess, HasNoDescriptorOfAnotherOne) {
  const std::string list = "echo /proc/$$/fd/*";
  const auto open = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  };
  const auto number = [](const std::string& text) {
    return std::count(text.begin(), text.end(), ' ');
  };
  const auto before = open();
  const std::string alone = Shell(list).out;
  {
    const os::ChildProcess other("/bin/sh", kStaying, Input::None);
    EXPECT_EQ(number(Shell(list).out), number(alone));
    EXPECT_GT(open(), before);
  }
  EXPECT_EQ(open(), before);
}

TEST(ChildProcess, IsGoneWithItsOwner) {
  pid_t process = 0;
  {
    os::ChildProcess child("/bin/sh", kStaying, Input::None);
    process = NumberFrom(child);
    EXPECT_TRUE(IsThere(process));
  }
  EXPECT_FALSE(IsThere(process));
}

TEST(ChildProcess, HasEndedWhoeverHoldsItsPipes) {
  os::ChildProcess child("/bin/sh", {"-c", "sleep 600 & echo $!"}, Input::None);
  const Said said = AllOf(child);
  EXPECT_EQ(said.status, 0);
  EXPECT_EQ(::kill(std::stoi(said.out), SIGKILL), 0);
}

TEST(ChildProcess, IsNotWaitedForLongerThanIsSaid) {
  os::ChildProcess child("/bin/sh", {"-c", "exec sleep 600"}, Input::None);
  os::ChildProcess* const children[] = {&child};
  for (const auto moment : {std::chrono::milliseconds(-1000), std::chrono::milliseconds(20)}) {
    const auto until = os::ChildProcess::Clock::now() + moment;
    os::ChildProcess::Wait(children, until);
    EXPECT_GE(os::ChildProcess::Clock::now(), until);
    EXPECT_FALSE(child.End());
  }
}

TEST(ChildProcess, EndsBeforeASignalEndsThisProcess) {
  const TemporaryFolder folder;
  const ChildEnd end = InChild([&]() -> std::string {
    os::PrepareForSignals();
    os::ChildProcess child("/bin/sh", kStaying, Input::None);
    static_cast<void>(folder.Write("number", std::to_string(NumberFrom(child))));
    (void)std::raise(SIGTERM);
    return "alive";
  });
  EXPECT_EQ(end, (ChildEnd{-SIGTERM, ""}));
  EXPECT_FALSE(IsThere(std::stoi(ReadFile(folder / "number"))));
}

TEST(ChildProcess, DoesNotOutliveAProcessThatIsKilled) {
  const ChildEnd end = InChild([] {
    auto* const child = new os::ChildProcess("/bin/sh", kStaying, Input::None);
    return std::to_string(NumberFrom(*child));
  });
  EXPECT_EQ(end.status, 0);
  EXPECT_TRUE(EndsSoon(std::stoi(end.text)));
}

TEST(ChildProcess, HasTheSignalsThatThisProcessWasGiven) {
  EXPECT_EQ(InChild([&] {
              os::PrepareForSignals();
              return Shell("kill -HUP $$; echo alive").cause +
                     Shell("kill -PIPE $$; echo alive").cause;
            }),
            (ChildEnd{0, "signal 1 (Hangup)signal 13 (Broken pipe)"}));
  EXPECT_EQ(InChild([&] {
              (void)std::signal(SIGHUP, SIG_IGN);
              os::PrepareForSignals();
              return Shell("kill -HUP $$; echo alive").out;
            }),
            (ChildEnd{0, "alive\n"}));
}

TEST(ChildProcess, IsSeenToEndWhereEndedChildrenAreIgnored) {
  EXPECT_EQ(InChild([] {
              (void)std::signal(SIGCHLD, SIG_IGN);
              return std::to_string(Shell("exit 5").status.value_or(-1));
            }),
            (ChildEnd{0, "5"}));
}

}  // namespace
}  // namespace strake::tests
