// Processes that are ended, and the job that they belong to.
#include "os/ChildProcess.h"
#include "tests/support/Helper.h"
#include "tests/support/Processes_windows.h"
#include "tests/support/Said.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using Input = os::ChildProcess::Input;

DWORD HandlesOfThisProcess() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  return count;
}

TEST(ChildProcess, IsGoneWithItsOwnerAndWhomItStarted) {
  std::vector<os::Handle> processes;
  {
    os::ChildProcess child(Helper(), {"start", "stay"}, Input::None);
    for (const DWORD number : NumbersFrom(child, 2)) {
      processes.push_back(Open(number));
    }
  }
  ASSERT_EQ(processes.size(), 2U);
  EXPECT_EQ(::WaitForSingleObject(processes[0].Get(), 0), WAIT_OBJECT_0);
  EXPECT_TRUE(EndsSoon(processes[1]));
}

TEST(ChildProcess, DoesNotOutliveAProcessThatIsKilled) {
  os::ChildProcess child(Helper(), {"start", "stay"}, Input::None);
  const std::vector<DWORD> numbers = NumbersFrom(child, 2);
  ASSERT_EQ(numbers.size(), 2U);
  const os::Handle parent = Open(numbers[0]);
  const os::Handle grandchild = Open(numbers[1]);
  ASSERT_NE(::TerminateProcess(parent.Get(), 7), 0);
  EXPECT_EQ(AllOf(child).status, 7);
  EXPECT_TRUE(EndsSoon(grandchild));
}

TEST(ChildProcess, ThatTheSystemEndsNamesTheStatus) {
  os::ChildProcess child(Helper(), {"stay"}, Input::None);
  const os::Handle process = Open(NumbersFrom(child, 1).at(0));
  ASSERT_NE(::TerminateProcess(process.Get(), 0xC0000005), 0);
  EXPECT_EQ(AllOf(child), (Said{"", "", {}, "the system (status 0xC0000005)"}));
}

TEST(ChildProcess, LeavesNoHandleBehind) {
  const auto round = [] {
    os::ChildProcess child(Helper(), {"say", "out", "err", "0"}, Input::None);
    return AllOf(child);
  };
  EXPECT_EQ(round(), (Said{"out", "err", 0, ""}));
  const DWORD before = HandlesOfThisProcess();
  for (int count = 0; count < 5; ++count) {
    round();
  }
  EXPECT_EQ(HandlesOfThisProcess(), before);
}

}  // namespace
}  // namespace strake::tests
