// One file under many names, on every system.
#include "tests/support/FileNames.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;

TEST(FileIdentity, IsTheSameHoweverTheNameIsSpelled) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "deep");
  const std::string file = folder / "report";
  for (const std::string text : {"not there yet", "there"}) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(AreSame(file, folder / "deep/../report"));
    EXPECT_TRUE(AreSame(file, folder / "./report"));
    EXPECT_FALSE(AreSame(file, folder / "report2"));
    EXPECT_FALSE(AreSame(folder / "deep/report", file));
    EXPECT_EQ(folder.Write("report", text), file);
  }
  fs::create_hard_link(file, folder / "hard");
  EXPECT_TRUE(AreSame(file, folder / "hard"));
  EXPECT_TRUE(AreSame(folder / "absent/a", folder / "absent/./a"));
  EXPECT_FALSE(AreSame(folder / "absent/a", folder / "absent/b"));
}

TEST(FileIdentity, KnowsTheNameOfStandardOutput) {
  EXPECT_EQ(os::NamedDescriptor("-"), os::kStandardOutput);
  EXPECT_EQ(os::NamedDescriptor("./-"), std::nullopt);
  EXPECT_EQ(os::NamedDescriptor(""), std::nullopt);
  EXPECT_TRUE(AreSame("-", "-"));
}

}  // namespace
}  // namespace strake::tests
