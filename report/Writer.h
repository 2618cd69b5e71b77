// What every report's writer is given.
#pragma once

#include "report/Report.h"

#include <functional>
#include <string_view>

namespace strake::report {

enum class Colour { Never, Headings };

// Takes a report's text piece by piece; what it throws ends the writing.
using Sink = std::function<void(std::string_view text)>;

// A format that knows no colour leaves it alone.
using Writer = void (*)(const Report& report, Colour colour, const Sink& sink);

}  // namespace strake::report
