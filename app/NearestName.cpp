#include "app/NearestName.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace strake::app {
namespace {

// Nothing that is longer is a mistyped name; it would only cost time.
constexpr std::size_t kLongestName = 100;

using Row = std::vector<std::size_t>;

// The number of changes that make one text the other.
std::size_t Distance(std::string_view one, std::string_view other) {
  Row beforeLast(other.size() + 1);
  Row last(other.size() + 1);
  Row row(other.size() + 1);
  for (std::size_t j = 0; j <= other.size(); ++j) {
    last[j] = j;
  }
  for (std::size_t i = 1; i <= one.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const bool isSame = one[i - 1] == other[j - 1];
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
      if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1]) {
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
      }
    }
    std::swap(beforeLast, last);
    std::swap(last, row);
  }
  return last.back();
}

}  // namespace

std::string_view NearestName(std::string_view name, std::span<const std::string_view> known) {
  std::string_view nearest;
  if (name.size() > kLongestName) {
    return nearest;
  }
  std::size_t fewest = kLongestName;
  for (const std::string_view candidate : known) {
    const std::size_t distance = Distance(name, candidate);
    if (distance < fewest && distance * 3 <= std::max(name.size(), candidate.size())) {
      fewest = distance;
      nearest = candidate;
    }
  }
  return nearest;
}

std::string DidYouMean(std::string_view name, std::span<const std::string_view> known) {
  const std::string_view nearest = NearestName(name, known);
  return nearest.empty() ? "" : ", did you mean '" + std::string(nearest) + "'?";
}

}  // namespace strake::app
