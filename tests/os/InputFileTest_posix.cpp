// Inputs that never end, and names that hold any byte.
#include "os/InputFile.h"
#include "tests/support/InputRefusal.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(InputFile, IsReadNotMuchFurtherThanTheLargestInput) {
  for (const std::size_t most : {std::size_t{0}, std::size_t{1}, std::size_t{1} << 20U}) {
    const std::size_t size = os::ReadInput("/dev/zero", most).size();
    EXPECT_GT(size, most);
    EXPECT_LE(size, most + 65536);
  }
}

TEST(InputFile, ThatCannotBeReadIsNamedWithoutWhatATerminalObeys) {
  EXPECT_EQ(RefusalOf("/"), "/: cannot be read: Is a directory");
  EXPECT_EQ(RefusalOf("a\n\x1b"), "a\\n\\x1B: cannot be read: No such file or directory");
}

}  // namespace
}  // namespace strake::tests
