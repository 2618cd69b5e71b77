// Whole inputs, and what is said of those that cannot be read.
#include "os/InputFile.h"
#include "tests/support/TemporaryFolder.h"
#include "text/InputError.h"

#include <gtest/gtest.h>
#include <memory>

namespace strake::tests {
namespace {

std::string RefusalOf(const std::string& file) {
  try {
    static_cast<void>(os::ReadInput(file, 1));
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "no refusal";
}

TEST(InputFile, IsReadByteForByte) {
  const TemporaryFolder folder;
  const std::string bytes("\0\r\n\xFF\x1A", 5);
  EXPECT_EQ(os::ReadInput(folder.Write("bytes", bytes), 5), bytes);
  EXPECT_EQ(os::ReadInput(folder.Write("empty", ""), 5), "");
  const std::string large(300'000, 'a');
  EXPECT_EQ(os::ReadInput(folder.Write("large", large), large.size()), large);
}

TEST(InputFile, IsReadNotMuchFurtherThanTheLargestInput) {
  for (const std::size_t most : {std::size_t{0}, std::size_t{1}, std::size_t{1} << 20U}) {
    const std::size_t size = os::ReadInput("/dev/zero", most).size();
    EXPECT_GT(size, most);
    EXPECT_LE(size, most + 65536);
  }
}

TEST(InputFile, CanBeAStreamThatIsOpen) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("file", "text");
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen(file.c_str(), "r"),
                                                               std::fclose);
  EXPECT_EQ(os::ReadInput(stream.get(), "standard input", 4), "text");
}

TEST(InputFile, ThatCannotBeReadIsNamedOnOneLine) {
  const TemporaryFolder folder;
  EXPECT_EQ(RefusalOf(folder / "none"),
            (folder / "none") + ": cannot be read: No such file or directory");
  EXPECT_EQ(RefusalOf("/"), "/: cannot be read: Is a directory");
  EXPECT_EQ(RefusalOf("a\n\x1b"), "a\\n\\x1B: cannot be read: No such file or directory");
}

}  // namespace
}  // namespace strake::tests
