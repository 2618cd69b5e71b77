// All that a child process said, and how it ended.
#pragma once

#include "os/ChildProcess.h"

#include <optional>
#include <ostream>
#include <string>

namespace strake::tests {

struct Said {
  std::string out;
  std::string err;
  std::optional<int> status;
  std::string cause;
  bool operator==(const Said&) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const Said& said) {
  return stream << "status " << said.status.value_or(-1) << " cause " << said.cause << "\n--- out\n"
                << said.out << "--- err\n"
                << said.err;
}

// Waits for its end.
inline Said AllOf(os::ChildProcess& child) {
  Said said;
  do {
    os::ChildProcess* const children[] = {&child};
    os::ChildProcess::Wait(children, std::nullopt);
    said.out += child.TakeOutput();
    said.err += child.TakeErrors();
  } while (!child.End());
  said.status = child.End()->status;
  said.cause = child.End()->cause;
  return said;
}

}  // namespace strake::tests
