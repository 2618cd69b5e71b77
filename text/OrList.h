// Names as a sentence has them.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>

namespace strake::text {

// "table, json or csv": of each row, what the function or member says.
template <typename Row, typename Name>
std::string OrList(std::span<const Row> rows, const Name& name) {
  std::string list;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i > 0) {
      list += i + 1 == rows.size() ? " or " : ", ";
    }
    list += std::invoke(name, rows[i]);
  }
  return list;
}

}  // namespace strake::text
