// What the command prints on a terminal.
#include "tests/app/CommandTest.h"
#include "tests/app/Command_posix.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST_F(CommandTest, ColoursHeadingsOnATerminalOnly) {
  const std::vector<std::string> words = {"collect", "--server", fServer, "--class",
                                          "VELKSG_SP_ComputerSystem"};
  std::string coloured = kSystemTable;
  for (const std::string heading :
       {"rack7.server.json (orlo): One card", "SP 1", "Findings: none", "Service processor 1",
        "Computer system (VELKSG_SP_ComputerSystem)"}) {
    coloured.replace(coloured.find(heading), heading.size(), "\x1b[1m" + heading + "\x1b[0m");
  }
  EXPECT_EQ(PosixCommand(words).Environment("TERM=xterm").RunOnTerminal(),
            (Outcome{0, coloured, ""}));
  EXPECT_EQ(PosixCommand(words).Environment("TERM=xterm").Environment("NO_COLOR=").RunOnTerminal(),
            (Outcome{0, coloured, ""}));
  EXPECT_EQ(PosixCommand(words).Environment("TERM=xterm").Environment("NO_COLOR=1").RunOnTerminal(),
            (Outcome{0, kSystemTable, ""}));
  EXPECT_EQ(PosixCommand(words).Environment("TERM=dumb").RunOnTerminal(),
            (Outcome{0, kSystemTable, ""}));
  EXPECT_EQ(PosixCommand(words).Environment("TERM=").RunOnTerminal(),
            (Outcome{0, kSystemTable, ""}));
  EXPECT_EQ(PosixCommand(words).RunOnTerminal(), (Outcome{0, kSystemTable, ""}));
  EXPECT_EQ(PosixCommand(words).Environment("TERM=xterm").Run(), (Outcome{0, kSystemTable, ""}));
}

}  // namespace
}  // namespace strake::tests
