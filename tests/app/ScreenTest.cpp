// How text is drawn over text.
#include "app/Screen.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(Screen, DrawsAFrameFromTheTopLeftAndErasesWhatIsLeftOfTheLast) {
  const struct {
    std::string_view text;
    std::size_t rows;
    std::string_view frame;
  } cases[] = {
      {"", 3, "\x1b[H\x1b[J"},
      {"a", 3, "\x1b[Ha\x1b[K\x1b[J"},
      {"a\n", 3, "\x1b[Ha\x1b[K\x1b[J"},
      {"a\n\nc\n", 3, "\x1b[Ha\x1b[K\r\n\x1b[K\r\nc\x1b[K\x1b[J"},
      {"a\nb\nc\nd\n", 3, "\x1b[Ha\x1b[K\r\nb\x1b[K\r\n... 2 more lines\x1b[K\x1b[J"},
      {"a\nb\nc\nd", 3, "\x1b[Ha\x1b[K\r\nb\x1b[K\r\n... 2 more lines\x1b[K\x1b[J"},
      {"a\nb\n", 1, "\x1b[H... 2 more lines\x1b[K\x1b[J"},
      {"a\nb\n", 0, "\x1b[Ha\x1b[K\r\nb\x1b[K\x1b[J"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(app::Frame(one.text, one.rows), one.frame) << one.text << " " << one.rows;
  }
}

// Signal handlers call plain functions.
std::string written;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

app::Screen::Means Means() {
  written.clear();
  return {[](std::string_view text) { written += text; },
          [](std::string_view text) noexcept { written += text; }};
}

constexpr const char* kEnter = "\x1b[?1049h\x1b[?25l\x1b[?7l";
constexpr const char* kLeave = "\x1b[?7h\x1b[?25h\x1b[?1049l";

TEST(Screen, GivesTheTerminalBackAtTheEnd) {
  {
    app::Screen screen(Means());
    screen.Draw("a\n", 2);
    EXPECT_EQ(written, std::string(kEnter) + "\x1b[Ha\x1b[K\x1b[J");
    written.clear();
  }
  EXPECT_EQ(written, kLeave);
}

TEST(Screen, GivesTheTerminalBackWhenASignalEndsTheRun) {
  const app::Screen screen(Means());
  written.clear();
  os::Unfinished::EndAll();
  EXPECT_EQ(written, kLeave);
}

}  // namespace
}  // namespace strake::tests
