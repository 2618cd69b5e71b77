// Lines for debuggers, heard by the process that they are told in.
#include "os/DebugListener_windows.h"

#include <gtest/gtest.h>
#include <thread>

namespace strake::tests {
namespace {

using os::DebugListener;

TEST(DebugListener, HearsTheLatestLineThatBeginsWithItsHead) {
  const DebugListener listener("head");
  EXPECT_EQ(listener.Heard(), std::nullopt);
  ::OutputDebugStringA("other");
  EXPECT_EQ(listener.Heard(), std::nullopt);
  ::OutputDebugStringA("head: first");
  ::OutputDebugStringA("head");
  EXPECT_EQ(listener.Heard(), "");
  ::OutputDebugStringA("head: \xFF\nlast");
  EXPECT_EQ(listener.Heard(), ": \xFF\nlast");
}

TEST(DebugListener, HearsNothingOfAnotherThread) {
  const DebugListener listener("head");
  std::thread([] { ::OutputDebugStringA("head"); }).join();
  EXPECT_EQ(listener.Heard(), std::nullopt);
}

TEST(DebugListener, ListensAgainWhenAnInnerOneIsGone) {
  const DebugListener outer("head");
  {
    const DebugListener inner("head");
    ::OutputDebugStringA("head inner");
    EXPECT_EQ(inner.Heard(), " inner");
  }
  EXPECT_EQ(outer.Heard(), std::nullopt);
  ::OutputDebugStringA("head outer");
  EXPECT_EQ(outer.Heard(), " outer");
}

}  // namespace
}  // namespace strake::tests
