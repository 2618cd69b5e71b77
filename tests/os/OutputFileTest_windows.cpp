// Devices, files that are open, and who may read what.
#include "os/FileName.h"
#include "os/Handle_windows.h"
#include "os/OutputFile.h"
#include "tests/support/OutputFailure.h"
#include "tests/support/TemporaryFolder.h"

#include <array>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using os::OutputFile;
using os::Privacy;
using Names = std::set<std::string>;

void Overwrite(const fs::path& name, Privacy privacy) {
  OutputFile file(name, privacy);
  file.Write("new");
  file.Complete();
}

TEST(OutputFile, CanBeADevice) {
  const TemporaryFolder folder;
  for (const std::string& name : {std::string("NUL"), std::string("nul"), folder / "NUL"}) {
    EXPECT_EQ(FailureOf(name), "no failure") << name;
  }
  EXPECT_EQ(folder.Names(), Names{});
}

TEST(OutputFile, IsUnderConstructionUnderANameOfItsOwn) {
  const TemporaryFolder folder;
  const std::string stem = ".strake-" + std::to_string(::GetCurrentProcessId()) + "-";
  static_cast<void>(folder.Write(stem + "0", "another process'"));
  OutputFile file(folder / "report", Privacy::Usual);
  EXPECT_EQ(folder.Names(), (Names{stem + "0", stem + "1"}));
  file.Complete();
  EXPECT_EQ(folder.Names(), (Names{stem + "0", "report"}));
  EXPECT_EQ(ReadFile(folder / (stem + "0")), "another process'");
}

TEST(OutputFile, HasTheNameThatItWasGivenInUtf8) {
  const TemporaryFolder folder;
  const std::string name = "\xC3\xA4\xE2\x82\xAC \xF0\x9F\x98\x80";
  Overwrite(folder.Path() / os::FileNamed(name), Privacy::Usual);
  const fs::path file = fs::directory_iterator(folder.Path())->path();
  EXPECT_TRUE(file.filename().u8string() == os::FileNamed(name).u8string());
  EXPECT_EQ(ReadFile(file), "new");
}

TEST(OutputFile, CanHaveANameThatIsLongerThanOldProgramsTake) {
  const TemporaryFolder folder;
  const std::array<std::string, 3> names{std::string(120, 'a'), std::string(120, 'b'),
                                         std::string(120, 'c')};
  fs::path deep = folder.Path();
  for (const std::string& name : names) deep /= name;
  fs::create_directories(deep);
  Overwrite(deep / "report", Privacy::Usual);
  Overwrite(deep / "report", Privacy::Usual);
  EXPECT_EQ(ReadFile(deep / "report"), "new");
  // What removes folders is such a program.
  fs::path brief = folder.Path();
  for (const std::string& name : names) {
    fs::rename(brief / name, brief / name.substr(0, 1));
    brief /= name.substr(0, 1);
  }
}

TEST(OutputFile, IsNoStreamBesideAFilesContent) {
  const TemporaryFolder folder;
  static_cast<void>(folder.Write("report", "old"));
  for (const char* const name : {"report:more", "other:more"}) {
    EXPECT_EQ(FailureOf(folder / name), "cannot write " + folder / name + ": Invalid argument");
  }
  EXPECT_EQ(folder.Names(), Names{"report"});
}

TEST(OutputFile, ReplacesTheFileWhoseNameDiffersInCase) {
  const TemporaryFolder folder;
  static_cast<void>(folder.Write("Report", "old"));
  Overwrite(folder / "rEPORT", Privacy::Usual);
  EXPECT_EQ(folder.Names().size(), 1U);
  EXPECT_EQ(ReadFile(folder / "Report"), "new");
}

TEST(OutputFile, LeavesAnotherNameOfTheFileItsOldContent) {
  const TemporaryFolder folder;
  fs::create_hard_link(folder.Write("one", "old"), folder / "other");
  Overwrite(folder / "one", Privacy::Usual);
  EXPECT_EQ(ReadFile(folder / "one"), "new");
  EXPECT_EQ(ReadFile(folder / "other"), "old");
}

os::Handle OpenForReading(const fs::path& name, DWORD others) {
  return os::Handle(::CreateFileW(name.c_str(), GENERIC_READ, others, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
}

TEST(OutputFile, ThatSomebodyHasOpenIsWrittenInPlaceUnlessItCanHoldSecrets) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("report", "old");
  const os::Handle reader = OpenForReading(name, FILE_SHARE_READ | FILE_SHARE_WRITE);
  Overwrite(name, Privacy::Usual);
  EXPECT_EQ(ReadFile(name), "new");
  EXPECT_EQ(folder.Names(), Names{"report"});
  EXPECT_THROW(Overwrite(name, Privacy::Owner), os::OutputError);
  EXPECT_EQ(ReadFile(name), "new");
  EXPECT_EQ(folder.Names(), Names{"report"});
}

TEST(OutputFile, ThatNobodyElseMayWriteIsRefused) {
  const TemporaryFolder folder;
  const std::string name = folder.Write("report", "old");
  const os::Handle reader = OpenForReading(name, FILE_SHARE_READ);
  EXPECT_EQ(FailureOf(name), "cannot write " + name + ": Permission denied");
  EXPECT_EQ(ReadFile(name), "old");
}

}  // namespace
}  // namespace strake::tests
