// An input that is refused or that cannot be read.
#pragma once

#include <stdexcept>

namespace strake::text {

// One line that names the source, the place in it and what was expected.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace strake::text
