// The reply buffer of a Kestle command, as the SP driver library fixes it.
#pragma once

#include <cstddef>

namespace strake {

inline constexpr std::size_t kKestleReplySize = 255;

}  // namespace strake
