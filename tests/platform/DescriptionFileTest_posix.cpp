// Modes, devices and streams.
#include "tests/platform/DescriptionFileTest.h"
#include "tests/support/StepDown.h"

#include <cstdio>
#include <memory>

namespace strake::platform {
namespace {

TEST_F(DescriptionFileTest, IsNamedWhenItMayNotBeRead) {
  const auto file = Write("secret.json", "{}");
  std::filesystem::permissions(file, std::filesystem::perms::none);
  const tests::StepDown user;
  EXPECT_EQ(RefusalOf(file), file.string() + ": cannot be read: Permission denied");
}

TEST_F(DescriptionFileTest, IsNamedWhenItsStreamCannotBeRead) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(
      std::fopen((fFolder / "a").c_str(), "a"), std::fclose);
  try {
    ReadServerDescription(stream.get(), "the stream");
    FAIL() << "taken";
  } catch (const text::InputError& error) {
    EXPECT_STREQ(error.what(), "the stream: cannot be read: Bad file descriptor");
  }
}

TEST_F(DescriptionFileTest, IsRefusedWhenItNeverEnds) {
  EXPECT_EQ(RefusalOf("/dev/zero"), "/dev/zero: expected at most 16777216 bytes, got more");
}

}  // namespace
}  // namespace strake::platform
