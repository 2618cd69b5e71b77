// The modes of what `strake replay` writes.
#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(CommandReplay, ClosesADescriptionToOthersUnlessItIsScrubbed) {
  const TemporaryFolder folder;
  const std::string trace = folder.Write(
      "field.trace", "{\"event\":\"sp\",\"call\":\"isDotcommand\",\"result\":false}\n");
  const std::string description = folder / "field.server.json";
  EXPECT_EQ(Strake({"replay", trace, "--output", description}).status, 0);
  EXPECT_EQ(ModeOf(description), 0600U);
  const std::string output = folder / "scrubbed.server.json";
  EXPECT_EQ(Strake({"replay", trace, "--scrub", "--output", output}).status, 0);
  EXPECT_EQ(ModeOf(output), 0644U);
}

}  // namespace
}  // namespace strake::tests
