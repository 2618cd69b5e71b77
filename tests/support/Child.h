// What a function does in a process of its own.
#pragma once

#include <functional>
#include <string>

namespace strake::tests {

struct ChildEnd {
  int status = -1;   // negative: the signal that ended it
  std::string text;  // the function's result, or what it threw
  bool operator==(const ChildEnd&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const ChildEnd& end);

ChildEnd InChild(const std::function<std::string()>& work);

}  // namespace strake::tests
