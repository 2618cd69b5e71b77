// A descriptor that would block loses nothing.
#include "os/FileIdentity.h"
#include "os/OutputFile.h"

#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

namespace strake::tests {
namespace {

// What arrives at the other end of a pipe that does not wait, whose reader begins
// when it is full.
std::string Received(int descriptor, const std::function<void()>& write) {
  int ends[2]{};
  EXPECT_EQ(::pipe2(ends, O_CLOEXEC), 0);
  int full[2]{};
  EXPECT_EQ(::pipe2(full, O_CLOEXEC), 0);
  const pid_t writer = ::fork();
  if (writer == 0) {
    ::fcntl(ends[1], F_SETFL, O_NONBLOCK);
    while (::write(ends[1], "f", 1) == 1) {
    }
    ::close(full[1]);
    ::dup2(ends[1], descriptor);
    write();
    ::_exit(0);
  }
  ::close(ends[1]);
  ::close(full[1]);
  char byte = 0;
  EXPECT_EQ(::read(full[0], &byte, 1), 0);
  std::string text;
  while (::read(ends[0], &byte, 1) == 1) {
    text += byte;
  }
  ::close(ends[0]);
  ::close(full[0]);
  return text.substr(std::min(text.size(), text.find_first_not_of('f')));
}

TEST(WaitingOutput, LosesNothing) {
  const std::string text(200000, 'x');
  EXPECT_TRUE(Received(os::kStandardOutput, [&] { os::WriteStandardOutput(text); }) == text);
  EXPECT_TRUE(Received(os::kStandardError, [&] { os::WriteStandardError(text); }) == text);
  EXPECT_TRUE(Received(os::kStandardOutput, [&] {
                os::OutputFile file("-", os::Privacy::Owner);
                file.Write(text);
                file.Complete();
              }) == text);
}

}  // namespace
}  // namespace strake::tests
