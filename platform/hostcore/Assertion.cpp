// The host's handler for failed checks of handles.
#include "platform/hostcore/HostControl.h"

#include <boost/assert.hpp>
#include <string>

namespace boost {

void assertion_failed(char const* expr, char const* function, char const* /*file*/, long line) {
  throw strake::platform::AssertionError(std::string(expr) + " failed in " + function + ", line " +
                                         std::to_string(line));
}

}  // namespace boost
