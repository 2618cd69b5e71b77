// The corpus of the tree is what its maker makes.
#include "fuzz/Harnesses.h"
#include "fuzz/KnownCommands.h"
#include "fuzz/Seeds.h"
#include "tests/support/Places.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = SourceFolder();

std::set<std::string> NamesIn(const fs::path& folder) {
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    names.insert(entry.path().filename().string());
  }
  return names;
}

TEST(FuzzSeeds, AreWhatTheirMakerMakesNoMoreAndNoFewer) {
  const auto servers = fuzz::ReadServers(kSource / "servers");
  for (const fuzz::Harness& harness : fuzz::kHarnesses) {
    const fs::path folder = kSource / "fuzz/corpus" / harness.name;
    SCOPED_TRACE(folder.string() + ": make_seeds servers fuzz/corpus writes it anew");
    std::set<std::string> made;
    for (const auto& [name, bytes] : fuzz::SeedsOf(harness.name, servers)) {
      made.insert(name);
      if (!fs::exists(folder / name)) continue;  // told below
      EXPECT_TRUE(fuzz::ReadBytes(folder / name) == bytes) << name << " differs";
    }
    EXPECT_EQ(NamesIn(folder), made);
  }
}

TEST(FuzzSeeds, HaveAFolderForEachHarness) {
  std::set<std::string> names;
  for (const fuzz::Harness& harness : fuzz::kHarnesses) {
    names.emplace(harness.name);
  }
  EXPECT_EQ(NamesIn(kSource / "fuzz/corpus"), names);
}

TEST(FuzzNumbers, NameEachCommandOfThePlugInOnceAndNothingElse) {
  std::set<unsigned char> numbers;
  std::set<std::string_view> commands;
  for (const fuzz::CommandNumber& row : fuzz::CommandNumbers()) {
    SCOPED_TRACE(row.command);
    EXPECT_TRUE(numbers.insert(row.number).second) << "a number stands twice";
    EXPECT_TRUE(commands.insert(row.command).second) << "a command stands twice";
    EXPECT_LT(row.number, fuzz::kUnnumbered);
    EXPECT_NE(fuzz::CommandNumbered(row.number), nullptr) << "the plug-in sends no such command";
  }
  EXPECT_LE(fuzz::CommandNumbers().size(), fuzz::KnownCommands().size());
}

// One of each kind, so that no number moves unseen.
TEST(FuzzNumbers, StayWhatTheyWere) {
  const auto& presence = *fuzz::CommandNumbered(0);
  EXPECT_EQ(presence.identifier, std::string("\1\1"));
  const auto& dhcp = *fuzz::CommandNumbered(25);
  EXPECT_EQ(dhcp.identifier, std::string("\4\11\1\1\20\11"));
  EXPECT_TRUE(dhcp.isNumbered);
  const auto& fan = *fuzz::CommandNumbered(67);
  EXPECT_EQ(fan.identifier, std::string("\2\3\20"));
  EXPECT_FALSE(fan.isNumbered);
  EXPECT_EQ(fuzz::CommandNumbered(fuzz::kUnnumbered), nullptr);
}

}  // namespace
}  // namespace strake::tests
