// Files under construction, with a name and without.
#include "os/StagedFile_posix.h"
#include "tests/support/Child.h"
#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using Names = std::set<std::string>;
using os::Descriptor;
using os::StagedFile;
using Place = StagedFile::Place;

constexpr Place kPlaces[] = {Place::Unnamed, Place::Named};

Descriptor Open(const std::filesystem::path& file, int flags) {
  return Descriptor(::open(file.c_str(), flags | O_CLOEXEC));
}

void Write(const StagedFile& file, const std::string& text) {
  EXPECT_EQ(os::WriteAll(file.Number(), text.data(), text.size()), 0);
}

TEST(StagedFile, GetsItsNameWhenItIsMoved) {
  for (const Place place : kPlaces) {
    for (const Names& before : {Names{}, Names{"report"}}) {
      const TemporaryFolder folder;
      if (!before.empty()) {
        EXPECT_EQ(ReadFile(folder.Write("report", "old")), "old");
      }
      const Descriptor opened = Open(folder.Path(), O_PATH);
      StagedFile file(opened, place, 0600);
      Write(file, "new");
      EXPECT_EQ(folder.Names().contains("report"), !before.empty());
      EXPECT_EQ(file.MoveTo("report"), 0);
      file.Discard();
      EXPECT_EQ(folder.Names(), Names{"report"});
      EXPECT_EQ(ReadFile(folder / "report"), "new");
      EXPECT_EQ(ModeOf(folder / "report"), 0600U);
    }
  }
}

TEST(StagedFile, HasANameOfItsOwnOnlyWhereItNeedsOne) {
  const TemporaryFolder folder;
  const Descriptor opened = Open(folder.Path(), O_PATH);
  const std::string stem = ".strake-" + std::to_string(::getpid()) + "-";
  const std::string others = folder.Write(stem + "0", "another process'");
  {
    const StagedFile named(opened, Place::Named, 0600);
    EXPECT_EQ(folder.Names(), (Names{stem + "0", stem + "1"}));
    EXPECT_EQ(ModeOf(folder / (stem + "1")), 0600U);
  }
  EXPECT_EQ(folder.Names(), Names{stem + "0"});
  EXPECT_EQ(ReadFile(others), "another process'");
}

TEST(StagedFile, LeavesNothingWhenItCannotBeMoved) {
  for (const Place place : kPlaces) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "deep");
    const Descriptor opened = Open(folder.Path(), O_PATH);
    StagedFile file(opened, place, 0600);
    EXPECT_EQ(file.MoveTo("deep"), EISDIR);
    EXPECT_EQ(file.MoveTo("absent/report"), ENOENT);
    file.Discard();
    EXPECT_EQ(folder.Names(), Names{"deep"});
  }
}

TEST(StagedFile, WithoutANameIsGoneWithItsProcess) {
  const TemporaryFolder folder;
  if (!Open(folder.Path(), O_TMPFILE | O_WRONLY).IsOpen()) {
    GTEST_SKIP() << "this file system has no files without a name";
  }
  const Descriptor opened = Open(folder.Path(), O_PATH);
  EXPECT_EQ(InChild([&]() -> std::string {
              const StagedFile file(opened, Place::Unnamed, 0600);
              Write(file, "new");
              (void)std::raise(SIGKILL);
              return "alive";
            }),
            (ChildEnd{-SIGKILL, ""}));
  EXPECT_EQ(folder.Names(), Names{});
}

TEST(StagedFile, IsCopiedOverAShorterAndALongerFile) {
  const std::string bytes(100000, 'x');
  for (const Place place : {Place::Unnamed, Place::Named, Place::Memory}) {
    for (const std::size_t length : {std::size_t{0}, std::size_t{3}, std::size_t{300000}}) {
      for (const std::string& text : {bytes, std::string()}) {
        const TemporaryFolder folder;
        const std::string other = folder.Write("other", std::string(length, 'o'));
        const Descriptor opened = Open(folder.Path(), O_PATH);
        const StagedFile file(opened, place, 0600);
        Write(file, text);
        EXPECT_EQ(file.CopyTo(Open(other, O_WRONLY).Number()), 0);
        EXPECT_TRUE(ReadFile(other) == text) << length;
      }
    }
  }
}

TEST(StagedFile, InMemoryNeedsNoFolder) {
  const StagedFile file(Descriptor(), Place::Memory, 0600);
  Write(file, "text");
  EXPECT_EQ(file.CopyTo(Open("/dev/full", O_WRONLY).Number()), ENODEV);
}

}  // namespace
}  // namespace strake::tests
