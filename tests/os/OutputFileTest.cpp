// Files that appear whole or not at all.
#include "os/OutputFile.h"
#include "os/OutputStream.h"
#include "tests/support/OutputFailure.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using os::OutputFile;
using os::Privacy;
using Names = std::set<std::string>;

TEST(OutputFile, ReplacesItsTargetOnlyWhenItIsComplete) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("report", "old");
  OutputFile file(name, Privacy::Usual);
  file.Write("new");
  EXPECT_EQ(ReadFile(name), "old");
  EXPECT_LE(folder.Names().size(), 2U);  // the other one: where files need a name
  file.Complete();
  EXPECT_EQ(ReadFile(name), "new");
  EXPECT_EQ(folder.Names(), Names{"report"});
}

TEST(OutputFile, ThatIsNotCompleteLeavesNothing) {
  const TemporaryFolder folder;
  {
    OutputFile file(folder / "report", Privacy::Usual);
    file.Write(std::string(200000, 'x'));
  }
  EXPECT_EQ(folder.Names(), Names{});
}

TEST(OutputFile, TakesAnyNumberOfBytes) {
  const TemporaryFolder folder;
  std::string expected;
  OutputFile file(folder / "report", Privacy::Usual);
  for (int index = 0; index < 50000; ++index) {
    const std::string line = std::to_string(index) + "\n";
    file.Write(line);
    expected += line;
  }
  file.Complete();
  EXPECT_EQ(ReadFile(folder / "report"), expected);
}

TEST(OutputStream, PassesEverythingToItsFile) {
  const TemporaryFolder folder;
  OutputFile file(folder / "trace", Privacy::Owner);
  os::OutputStreamBuffer buffer(file);
  std::ostream stream(&buffer);
  stream << "text" << 'c' << std::string(100000, 'x') << 42;
  file.Complete();
  EXPECT_EQ(ReadFile(folder / "trace"), "textc" + std::string(100000, 'x') + "42");
}

TEST(OutputFile, NamesTheReasonWhereNoFileCanBe) {
  const TemporaryFolder folder;
  EXPECT_EQ(FailureOf(folder / "absent/report"),
            "cannot write " + (folder / "absent/report") + ": No such file or directory");
  EXPECT_EQ(FailureOf(folder.Path()),
            "cannot write " + folder.Path().string() + ": Is a directory");
  EXPECT_EQ(FailureOf(folder / "absent/"),
            "cannot write " + (folder / "absent/") + ": No such file or directory");
  EXPECT_EQ(FailureOf(""), "cannot write : Is a directory");
  const std::string file = folder.Write("file", "");
  EXPECT_EQ(FailureOf(file + "/"), "cannot write " + file + "/: Not a directory");
  EXPECT_EQ(folder.Names(), Names{"file"});
}

}  // namespace
}  // namespace strake::tests
