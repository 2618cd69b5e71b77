// The words of Windows' loader, which calls the entry itself.
#include "tests/support/ModuleRefusal.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace strake::platform {
namespace {

TEST(PluginModule, SaysThatAFileIsNoModule) {
  const tests::TemporaryFolder folder;
  for (const std::string& file :
       {folder.Write("text.dll", "This is a text, not a module, and no short one either.\n"),
        folder.Write("empty.dll", "")}) {
    const std::string head = file + ": is not a loadable module: ";
    const std::string refusal = tests::RefusalOf(file);
    EXPECT_TRUE(refusal.starts_with(head) && refusal.size() > head.size()) << refusal;
  }
}

// What the hostile module is asked to do.
class Hostility {
 public:
  explicit Hostility(const std::string& step) { ::_putenv(("STRAKE_HOSTILE=" + step).c_str()); }
  Hostility(const Hostility&) = delete;
  Hostility& operator=(const Hostility&) = delete;
  ~Hostility() { ::_putenv("STRAKE_HOSTILE="); }
};

std::string ThrownBy(const std::string& step) {
  const Hostility hostility(step);
  const PluginModule module(tests::BuildFolder() + "/test-modules/hostile" STRAKE_MODULE_SUFFIX);
  try {
    return "answer " + std::to_string(module.Entry()(1));
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "no exception of the library's";
  }
}

TEST(PluginModule, GivesTheTextOfWhatItsLoaderDoesNotLetPass) {
  EXPECT_EQ(ThrownBy("attach memory"), "std::bad_alloc");
  EXPECT_EQ(ThrownBy("attach int"), "no exception of the library's");
  EXPECT_TRUE(ThrownBy("attach handle").starts_with("px != 0 failed in "));
}

}  // namespace
}  // namespace strake::platform
