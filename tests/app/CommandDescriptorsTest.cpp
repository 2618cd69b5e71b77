// The command's outputs where they meet each other, an input or standard output.
#include "tests/app/CommandDescriptorsTest.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST_F(CommandDescriptorsTest, RefusesOutputsThatAreOneFileOrAnInput) {
  std::filesystem::create_hard_link(fOld, fFolder / "hard");
  const std::string plugin = fFolder.Write(ModuleFile("plugin"), "no module");
  struct Case {
    std::vector<std::string> words;
    std::string options;
    std::string file;
  };
  const std::vector<Case> cases = {
      {{"--output", fNew, "--trace", fNew}, "--output and --trace", fNew},
      {{"--output", fOld, "--log", fFolder / "hard"}, "--output and --log", fFolder / "hard"},
      {{"--output", fServer}, "--server and --output", fServer},
      {{"--trace", fServer}, "--server and --trace", fServer},
      {{"--plugin", plugin, "--output", plugin}, "--plugin and --output", plugin},
      {{"--plugin", plugin, "--log", plugin}, "--plugin and --log", plugin},
      {{"--trace", "-"}, "the report and --trace", "-"},
      {{"--output", fNew, "--trace", "-", "--log", "-"}, "--trace and --log", "-"},
  };
  const std::set<std::string> before = fFolder.Names();
  for (const Case& one : cases) {
    EXPECT_EQ(Strake(Collecting(one.words)),
              Refusal(one.options + ": both are the file " + one.file));
  }
  EXPECT_EQ(fFolder.Names(), before);
  EXPECT_EQ(ReadFile(fServer), kNoProcessor);
  EXPECT_EQ(ReadFile(fOld), "old");
  EXPECT_EQ(ReadFile(plugin), "no module");
}

TEST_F(CommandDescriptorsTest, TakesAHyphenForStandardOutput) {
  const Outcome plain = Strake(Collecting({}));
  EXPECT_EQ(Strake(Collecting({"--output", "-"})), plain);
  EXPECT_EQ(Strake(Collecting({"--output", fNew, "--trace", fOld})), (Outcome{0, "", plain.err}));
  EXPECT_EQ(ReadFile(fNew), plain.out);
  EXPECT_EQ(Strake(Collecting({"--output", fNew, "--trace", "-"})),
            (Outcome{0, ReadFile(fOld), plain.err}));
}

}  // namespace
}  // namespace strake::tests
