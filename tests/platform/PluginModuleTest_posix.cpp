// The words of ELF's loader.
#include "tests/support/ModuleRefusal.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::platform {
namespace {

TEST(PluginModule, SaysThatAFileIsNoModule) {
  const tests::TemporaryFolder folder;
  const std::string file =
      folder.Write("text.so", "This is a text, not a module, and long enough to hold a header.\n");
  EXPECT_EQ(tests::RefusalOf(file), file + ": is not a loadable module: invalid ELF header");
  const std::string empty = folder.Write("empty.so", "");
  EXPECT_EQ(tests::RefusalOf(empty), empty + ": is not a loadable module: file too short");
}

}  // namespace
}  // namespace strake::platform
