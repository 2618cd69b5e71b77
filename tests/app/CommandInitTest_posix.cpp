// `strake init` among modes, links and names of descriptors.
#include "tests/app/CommandInitTest.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST_F(CommandInitTest, TakesStandardOutputByItsNameAndGivesAFileTheModeOfItsUsersMask) {
  const std::string text = Init({}).out;
  EXPECT_EQ(Init({"--output", "/dev/stdout"}), (Outcome{0, text, ""}));
  const std::string file = fFolder / "two words";
  EXPECT_EQ(Init({"--output", file}).status, 0);
  EXPECT_EQ(ModeOf(file), 0644U);
}

TEST_F(CommandInitTest, RefusesALinkToAFileThatHoldsSomething) {
  const std::string filled = fFolder.Write("filled", "by hand");
  std::filesystem::create_symlink(filled, fFolder / "link");
  EXPECT_EQ(Init({"--output", fFolder / "link"}), Refusal(fFolder / "link"));
  EXPECT_EQ(ReadFile(filled), "by hand");
}

}  // namespace
}  // namespace strake::tests
