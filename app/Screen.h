// A terminal on which text is drawn over the text before.
#pragma once

#include "os/Signals.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace strake::app {

// What draws a text over what is there, from the top left corner. Of more lines
// than there are rows the last row counts the rest. 0 rows: as many as it takes.
std::string Frame(std::string_view text, std::size_t rows);

// Takes a screen of its own, on which no line is wrapped, and gives back at the
// end what was there before.
class Screen : private os::Unfinished {
 public:
  struct Means {
    std::function<void(std::string_view)> write;
    // Safe in a signal handler.
    void (*leave)(std::string_view) noexcept;
  };

  explicit Screen(Means means);
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen() override;

  // Gives the terminal back for a while, and takes it again.
  void GiveBack() const { fMeans.leave(kLeave); }
  void TakeAgain() const { fMeans.write(kEnter); }

  void Draw(std::string_view text, std::size_t rows) const { fMeans.write(Frame(text, rows)); }

 private:
  // Another screen, without a cursor, cut at the right.
  static constexpr std::string_view kEnter = "\x1b[?1049h\x1b[?25l\x1b[?7l";
  static constexpr std::string_view kLeave = "\x1b[?7h\x1b[?25h\x1b[?1049l";

  void EndBySignal() noexcept override;

  Means fMeans;
};

}  // namespace strake::app
