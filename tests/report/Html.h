// A page taken apart, as strictly as it was put together.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace strake::tests {

// Elements that have no end.
inline bool IsVoid(std::string_view name) {
  return name == "meta" || name == "input" || name == "!DOCTYPE";
}

struct HtmlPage {
  std::vector<std::string> tags;  // of starts, in order: "td class=\"number\""
  std::string text;               // what stands between tags, references as they are
};

// Throws std::runtime_error: an element ends that was not the last one to begin,
// or one does not end, or a ">" stands alone. Style and script are left out.
inline HtmlPage TakeApart(std::string_view html) {
  HtmlPage page;
  std::vector<std::string> open;
  while (!html.empty()) {
    const std::size_t begin = html.find('<');
    page.text += html.substr(0, begin);
    if (begin == std::string_view::npos) {
      break;
    }
    const std::size_t end = html.find('>', begin);
    if (end == std::string_view::npos) {
      throw std::runtime_error("a tag does not end");
    }
    const std::string tag(html.substr(begin + 1, end - begin - 1));
    const std::string name = tag.substr(0, tag.find_first_of(" /", 1));
    html.remove_prefix(end + 1);
    if (tag.starts_with('/')) {
      if (open.empty() || "/" + open.back() != tag) {
        throw std::runtime_error("<" + tag + "> ends nothing");
      }
      open.pop_back();
      continue;
    }
    page.tags.push_back(tag);
    if (!tag.ends_with('/') && !IsVoid(name)) {
      open.push_back(name);
    }
    if (name == "style" || name == "script") {
      html.remove_prefix(html.find("</" + name + ">"));
    }
  }
  if (!open.empty() || page.text.find('>') != std::string::npos) {
    throw std::runtime_error(open.empty() ? "a > stands alone" : open.back() + " does not end");
  }
  return page;
}

}  // namespace strake::tests
