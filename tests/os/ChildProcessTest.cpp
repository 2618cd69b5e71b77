// Another program beside this one, on every system.
#include "os/ChildProcess.h"
#include "tests/support/Helper.h"
#include "tests/support/Said.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using Input = os::ChildProcess::Input;
using Words = std::vector<std::string>;

Said Help(const Words& words) {
  os::ChildProcess child(Helper(), words, Input::None);
  return AllOf(child);
}

TEST(ChildProcess, SaysWhatItWroteToBothStreamsAndItsStatus) {
  EXPECT_EQ(Help({"say", "out\n", "err\n", "3"}), (Said{"out\n", "err\n", 3, ""}));
  EXPECT_EQ(Help({"say", "\r\n", "", "0"}), (Said{"\r\n", "", 0, ""}));
  EXPECT_EQ(Help({"say", "", "\x1A no end", "255"}), (Said{"", "\x1A no end", 255, ""}));
}

TEST(ChildProcess, IsGivenAnyWordsAsTheyAre) {
  const Words words{"",           "a b",
                    "\"",         "\\",
                    "\\\\",       "a\\\"b",
                    "\\\"",       "\\\\\"",
                    "ends in \\", "ends in \"",
                    "\"quoted\"", "tab\t",
                    "*.cpp",      "%PATH%",
                    "$x",         "^&|<>",
                    "'",          "/c",
                    "--",         "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80",
                    "line\nline", "\\server\\name\\"};
  Words all{"words"};
  all.insert(all.end(), words.begin(), words.end());
  std::string expected;
  for (const std::string& word : words) {
    expected += word + "|";
  }
  EXPECT_EQ(Help(all), (Said{expected, "", 0, ""}));
}

TEST(ChildProcess, LosesNothingOfWhatIsWrittenToBothStreams) {
  const Said said = Help({"much", "1000000", "900000"});
  EXPECT_TRUE(said.out == std::string(1000000, 'm'));
  EXPECT_TRUE(said.err == std::string(900000, 'm'));
}

TEST(ChildProcess, LosesNothingOfManyThatEndBeforeTheyAreRead) {
  constexpr std::size_t kChildren = 70;  // more than a system's call waits for
  std::vector<std::unique_ptr<os::ChildProcess>> children;
  std::vector<os::ChildProcess*> running;
  for (std::size_t number = 0; number < kChildren; ++number) {
    const Words words{"words", std::to_string(number), "second", "third"};
    children.push_back(std::make_unique<os::ChildProcess>(Helper(), words, Input::None));
    running.push_back(children.back().get());
  }
  while (!running.empty()) {
    os::ChildProcess::Wait(running, std::nullopt);
    std::erase_if(running, [](const os::ChildProcess* child) { return child->End().has_value(); });
  }
  for (std::size_t number = 0; number < kChildren; ++number) {
    EXPECT_EQ(children[number]->TakeOutput(), std::to_string(number) + "|second|third|");
  }
}

TEST(ChildProcess, ReadsNothingUnlessThatIsSaid) {
  EXPECT_EQ(Help({"copy"}), (Said{"", "", 0, ""}));
}

TEST(ChildProcess, ThatIsNoProgramIsNotStarted) {
  const TemporaryFolder folder;
  const std::string text = folder.Write("text.exe", "no program");
  for (const std::string& program : {folder / "none", text, folder.Path().string()}) {
    EXPECT_THROW(os::ChildProcess(program, {}, Input::None), std::system_error) << program;
  }
}

TEST(ChildProcess, WaitsAsLongAsIsSaidForOneThatSaysNothingMore) {
  os::ChildProcess child(Helper(), {"stay"}, Input::None);
  os::ChildProcess* const children[] = {&child};
  std::string text;
  while (text.find('\n') == std::string::npos) {
    os::ChildProcess::Wait(children, std::nullopt);
    text += child.TakeOutput();
  }
  for (const auto moment : {std::chrono::milliseconds(-1000), std::chrono::milliseconds(20)}) {
    const auto until = os::ChildProcess::Clock::now() + moment;
    os::ChildProcess::Wait(children, until);
    EXPECT_GE(os::ChildProcess::Clock::now(), until);
    EXPECT_FALSE(child.End());
  }
}

}  // namespace
}  // namespace strake::tests
