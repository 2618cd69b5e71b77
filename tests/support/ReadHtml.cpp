#include "tests/support/ReadBack.h"

#include <stdexcept>

namespace strake::tests {
namespace {

// Elements that have no end.
bool IsVoid(std::string_view name) {
  return name == "meta" || name == "input" || name == "!DOCTYPE";
}

[[noreturn]] void Refuse(const std::string& text) { throw std::runtime_error(text); }

// What stands in front of it, which is taken away with it.
std::string_view TakeUpTo(std::string_view& html, std::string_view end, const std::string& what) {
  const std::size_t at = html.find(end);
  if (at == std::string_view::npos) {
    Refuse(what + " does not end");
  }
  const std::string_view taken = html.substr(0, at);
  html.remove_prefix(at + end.size());
  return taken;
}

}  // namespace

HtmlPage ReadHtml(std::string_view html) {
  HtmlPage page;
  std::vector<std::string> open;
  for (std::size_t begin = html.find('<'); begin != std::string_view::npos;
       begin = html.find('<')) {
    page.text += html.substr(0, begin);
    html.remove_prefix(begin + 1);
    const std::string tag(TakeUpTo(html, ">", "a tag"));
    const std::string name = tag.substr(0, tag.find_first_of(" /", 1));
    if (tag.starts_with('/')) {
      if (open.empty() || "/" + open.back() != tag) {
        Refuse("<" + tag + "> ends nothing");
      }
      open.pop_back();
      continue;
    }
    page.tags.push_back(tag);
    if (name == "style" || name == "script") {
      TakeUpTo(html, "</" + name + ">", name);
    } else if (!tag.ends_with('/') && !IsVoid(name)) {
      open.push_back(name);
    }
  }
  page.text += html;
  if (!open.empty() || page.text.find('>') != std::string::npos) {
    Refuse(open.empty() ? "a > stands alone" : open.back() + " does not end");
  }
  return page;
}

}  // namespace strake::tests
