// What the command does to files with modes, and to devices.
#include "tests/app/CommandFilesTest.h"
#include "tests/app/Command_posix.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;

TEST_F(CommandFilesTest, RefusesADescriptionThatIsClosedToItsUser) {
  const std::string closed = fFolder.Write("closed", kNoProcessor);
  fs::permissions(closed, fs::perms::none);
  ExpectEnd(PosixCommand(Collecting({"--server", closed})).AsOrdinaryUser().Run(), 2,
            "strake: " + closed + ": cannot be read: Permission denied", {"closed"});
}

TEST_F(CommandFilesTest, FailsOverADeviceThatIsFull) {
  for (const std::string option : {"--output", "--trace", "--log"}) {
    ExpectEnd(Strake({"collect", option, "/dev/full"}), 1,
              "strake: cannot write /dev/full: No space left on device\n");
  }
}

TEST_F(CommandFilesTest, ClosesToOthersWhatCanHoldSecrets) {
  const std::string server = fFolder.Write("s", kNoProcessor);
  for (const std::string& output : fOutputs) {
    fs::remove(output);
  }
  const std::vector<std::string> words = {"collect", "--server",  server,  "--output", fOutputs[0],
                                          "--trace", fOutputs[1], "--log", fOutputs[2]};
  EXPECT_EQ(PosixCommand(words).Mask(0).Run(), (Outcome{0, "", ""}));
  EXPECT_EQ(ModeOf(fOutputs[0]), 0666U);
  EXPECT_EQ(ModeOf(fOutputs[1]), 0600U);
  EXPECT_EQ(ModeOf(fOutputs[2]), 0600U);
  EXPECT_EQ(PosixCommand(words).Mask(027).Run(), (Outcome{0, "", ""}));
  EXPECT_EQ(ModeOf(fOutputs[0]), 0666U);  // the one that is there
  fs::remove(fOutputs[0]);
  EXPECT_EQ(PosixCommand(words).Mask(027).Run(), (Outcome{0, "", ""}));
  EXPECT_EQ(ModeOf(fOutputs[0]), 0640U);
  std::vector<std::string> clear = words;
  clear.emplace_back("--show-secrets");
  EXPECT_EQ(PosixCommand(clear).Mask(0).Run(), (Outcome{0, "", ""}));
  EXPECT_EQ(ModeOf(fOutputs[0]), 0600U);
}

}  // namespace
}  // namespace strake::tests
