// Writes a page piece by piece. Markup is what stands in the source between
// quotes; all else is text, and is escaped.
#pragma once

#include "report/Writer.h"
#include "text/HtmlEscape.h"

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

namespace strake::report {

class Markup {
 public:
  // Known when the source is compiled, so nothing that was collected can be one.
  consteval explicit Markup(std::string_view text) : fText(text) {}
  [[nodiscard]] constexpr std::string_view Text() const { return fText; }

 private:
  std::string_view fText;
};

consteval Markup operator""_html(const char* text, std::size_t size) {
  return Markup(std::string_view(text, size));
}

class HtmlOut {
 public:
  // The sink stays the caller's.
  explicit HtmlOut(const Sink& sink) : fSink(&sink) {}

  template <typename... Parts>
  void Add(const Parts&... parts) {
    (Put(parts), ...);
    if (fPending.size() >= kPiece) {
      Flush();
    }
  }

  // The page's own style or script.
  void AddAsset(std::string_view asset) { fPending += asset; }

  void Flush() {
    (*fSink)(fPending);
    fPending.clear();
  }

 private:
  static constexpr std::size_t kPiece = 32768;

  void Put(const Markup& markup) { fPending += markup.Text(); }
  void Put(std::string_view text) { text::AppendHtml(fPending, text); }
  template <std::integral Number>
  void Put(Number number) {
    fPending += std::to_string(number);
  }

  const Sink* fSink;
  std::string fPending;
};

}  // namespace strake::report
