// Modules that cannot be used, on every system.
#include "tests/support/ModuleRefusal.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::platform {
namespace {

TEST(PluginModule, SaysThatTheFileIsMissing) {
  const tests::TemporaryFolder folder;
  const std::string file = folder / "missing.so";
  EXPECT_EQ(tests::RefusalOf(file), file + ": there is no such module file");
}

TEST(PluginModule, SaysThatAFolderIsNoModule) {
  const tests::TemporaryFolder folder;
  EXPECT_TRUE(tests::RefusalOf(folder.Path())
                  .starts_with(folder.Path().string() + ": is not a loadable module: "));
}

TEST(PluginModule, SaysThatALibraryLacksTheEntry) {
  const std::string file = tests::BuildFolder() + STRAKE_HOSTCORE;
  EXPECT_EQ(tests::RefusalOf(file), file + ": the module lacks the entry \"StrakeModuleEntry\"");
}

TEST(PluginModule, GivesTheAnswerOfAnEntryThatFails) {
  const PluginModule module(tests::BuildFolder() + "/test-modules/refusing" STRAKE_MODULE_SUFFIX);
  EXPECT_EQ(module.Entry()(1), 0);
}

}  // namespace
}  // namespace strake::platform
