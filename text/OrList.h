// Names as a sentence has them.
#pragma once

#include <cstddef>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace strake::text {

// "table, json or csv": of each row, what the function or member says.
template <typename Rows, typename Name>
std::string OrList(const Rows& rows, const Name& name) {
  std::string list;
  std::size_t left = std::size(rows);
  for (const auto& row : rows) {
    if (!list.empty()) {
      list += left == 1 ? " or " : ", ";
    }
    list += std::invoke(name, row);
    --left;
  }
  return list;
}

// Of each row, what the function or member says.
template <typename Rows, typename Name>
std::vector<std::string> Names(const Rows& rows, const Name& name) {
  std::vector<std::string> names;
  names.reserve(std::size(rows));
  for (const auto& row : rows) {
    names.emplace_back(std::invoke(name, row));
  }
  return names;
}

}  // namespace strake::text
