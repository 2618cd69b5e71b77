#include "platform/session/PluginModule.h"
#include "tests/support/Places.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace strake::platform {
namespace {

class PluginModuleTest : public testing::Test {
 protected:
  PluginModuleTest()
      : fFolder(std::filesystem::path(testing::TempDir()) /
                ("plugin-modules-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(fFolder);
  }
  ~PluginModuleTest() override { std::filesystem::remove_all(fFolder); }

  std::filesystem::path fFolder;
};

std::string RefusalOf(const std::filesystem::path& file) {
  try {
    const PluginModule module(file);
  } catch (const os::ModuleError& error) {
    return error.what();
  }
  return "loaded";
}

TEST_F(PluginModuleTest, SaysThatTheFileIsMissing) {
  const auto file = fFolder / "missing.so";
  EXPECT_EQ(RefusalOf(file), file.string() + ": there is no such module file");
}

TEST_F(PluginModuleTest, SaysThatAFileIsNoModule) {
  const auto file = fFolder / "text.so";
  std::ofstream(file) << "This is a text, not a module, and long enough to hold a header.\n";
  EXPECT_EQ(RefusalOf(file), file.string() + ": is not a loadable module: invalid ELF header");
  std::ofstream(fFolder / "empty.so") << "";
  EXPECT_EQ(RefusalOf(fFolder / "empty.so"),
            (fFolder / "empty.so").string() + ": is not a loadable module: file too short");
  EXPECT_TRUE(RefusalOf(fFolder).starts_with(fFolder.string() + ": is not a loadable module: "));
}

TEST_F(PluginModuleTest, SaysThatALibraryLacksTheEntry) {
  const std::filesystem::path file = tests::BuildFolder() + "/lib/libstrake_hostcore.so";
  EXPECT_EQ(RefusalOf(file), file.string() + ": the module lacks the entry \"StrakeModuleEntry\"");
}

}  // namespace
}  // namespace strake::platform
