// Whole inputs, and what is said of those that cannot be read.
#include "os/InputFile.h"
#include "tests/support/InputRefusal.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <memory>

namespace strake::tests {
namespace {

TEST(InputFile, IsReadByteForByte) {
  const TemporaryFolder folder;
  const std::string bytes("\0\r\n\xFF\x1A", 5);
  EXPECT_EQ(os::ReadInput(folder.Write("bytes", bytes), 5), bytes);
  EXPECT_EQ(os::ReadInput(folder.Write("empty", ""), 5), "");
  const std::string large(300'000, 'a');
  EXPECT_EQ(os::ReadInput(folder.Write("large", large), large.size()), large);
}

TEST(InputFile, CanBeAStreamThatIsOpen) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen(file.c_str(), "rb"),
                                                               std::fclose);
  EXPECT_EQ(os::ReadInput(stream.get(), "standard input", 4), "text");
}

TEST(InputFile, ThatCannotBeReadIsNamedOnOneLine) {
  const TemporaryFolder folder;
  EXPECT_EQ(RefusalOf(folder / "none"),
            (folder / "none") + ": cannot be read: No such file or directory");
  EXPECT_EQ(RefusalOf(folder / "absent/none"),
            (folder / "absent/none") + ": cannot be read: No such file or directory");
  EXPECT_EQ(RefusalOf(folder.Path()), folder.Path().string() + ": cannot be read: Is a directory");
}

}  // namespace
}  // namespace strake::tests
