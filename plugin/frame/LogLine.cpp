#include "plugin/frame/LogLine.h"

namespace strake {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): see there.
std::string LineInTheMaking::text;

}  // namespace strake
