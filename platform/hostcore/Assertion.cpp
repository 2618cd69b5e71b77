// The host's handler for failed checks of handles.
#include "platform/hostcore/HostControl.h"

#include <array>
#include <boost/assert.hpp>
#include <string>

namespace strake::platform {
namespace {

// Room of its own: nothing that the host allocates for a failure stays.
std::array<char, 1024>& Kept() {
  static std::array<char, 1024> text{};
  return text;
}

void Keep(const std::string& text) {
  Kept().fill('\0');
  text.copy(Kept().data(), Kept().size() - 1);
}

}  // namespace

void ForgetFailedAssertion() { Kept().fill('\0'); }

void RethrowFailedAssertion() {
  const std::string text = Kept().data();
  ForgetFailedAssertion();
  if (!text.empty()) {
    throw AssertionError(text);
  }
}

}  // namespace strake::platform

namespace boost {

void assertion_failed(char const* expr, char const* function, char const* /*file*/, long line) {
  const std::string text =
      std::string(expr) + " failed in " + function + ", line " + std::to_string(line);
  strake::platform::Keep(text);
  throw strake::platform::AssertionError(text);
}

}  // namespace boost
