// `strake check` of a file whose name holds what Windows admits in none.
#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(Check, ShowsNothingThatATerminalWouldObey) {
  const TemporaryFolder folder;
  const std::string server = folder.Write(
      "\x1b[2J", R"({"format":"strake-server/1","description":"a\u001b[31m\nb\u009b\u202e",)"
                 R"("machine_type_model":"\u0007\n","sp":{"kind":"tavit"}})");
  const Outcome outcome = Strake({"check", server});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out.substr(folder.Path().string().size()),
            "/\\x1B[2J is fine: kind tavit, 1 Tavit processor; "
            "a\\x1B[31m\\nb\\xC2\\x9B\\xE2\\x80\\xAE\n" +
                folder.Path().string() +
                "/\\x1B[2J: warning: at /machine_type_model: '\\x07\\n' is no machine with a "
                "Tavit processor, so nothing is sent to it\n");
}

}  // namespace
}  // namespace strake::tests
