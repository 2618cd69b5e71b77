// The value of --filter.
#pragma once

#include "report/Selection.h"

#include <string>

namespace strake::app {

// CLASS.PROPERTY=GLOB; the class by its name or its short name. Gives the filter,
// or throws UsageError.
report::PropertyFilter ParsePropertyFilter(const std::string& text);

}  // namespace strake::app
