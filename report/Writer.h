// What every report's writer is given.
#pragma once

#include "report/Marks.h"
#include "report/Report.h"

#include <cstddef>
#include <functional>
#include <string_view>

namespace strake::report {

// For a terminal: headings stand out, and what somebody has to look at has a
// colour.
enum class Colour { Never, Terminal };

// How sensors of one kind follow each other. Those without a reading come last,
// equal ones stay in the order in which they were collected.
enum class SensorOrder {
  AsCollected,
  ByName,
  ByReading,  // the lowest first, each unit for itself
  ByState,    // the gravest first
};

// How a format for people is laid out; the others leave it alone.
struct Layout {
  Colour colour = Colour::Never;
  std::size_t columns = 80;  // of the terminal
  SensorOrder order = SensorOrder::AsCollected;
  bool header = true;  // without it: rows of data and nothing else
  // What stands out in a table, by colour or by ">"; null: nothing.
  const Marks* marks = nullptr;
};

// Takes a report's text piece by piece; what it throws ends the writing.
using Sink = std::function<void(std::string_view text)>;

using Writer = void (*)(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
