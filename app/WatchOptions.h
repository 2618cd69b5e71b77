// What `strake watch` was asked to do.
#pragma once

#include "app/CollectOptions.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace strake::app {

struct WatchOptions {
  CollectOptions collect;
  std::chrono::milliseconds interval{10'000};
  std::optional<std::uint32_t> count;  // of rounds; none: until a signal
  double tolerancePercent = 0;
};

}  // namespace strake::app
