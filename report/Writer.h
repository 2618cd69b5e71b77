// What every report's writer is given.
#pragma once

#include "report/Report.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace strake::report {

enum class Colour { Never, Headings };

// How sensors of one kind follow each other.
enum class SensorOrder { AsCollected, ByName, ByReading, ByState };

// How a format for people is laid out; the others leave it alone.
struct Layout {
  Colour colour = Colour::Never;
  std::size_t columns = 80;  // of the terminal
  SensorOrder order = SensorOrder::AsCollected;
  bool header = true;
};

// Takes a report's text piece by piece; what it throws ends the writing.
using Sink = std::function<void(std::string_view text)>;

using Writer = void (*)(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
