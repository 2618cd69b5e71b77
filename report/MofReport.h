// The instances in the Managed Object Format.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// In commit order, properties in the order in which they were set. What they are
// of, and a sensor's state, stand in comments: those are valid everywhere, while
// a qualifier of an instance would need a declaration, whose scopes know no
// instances.
void WriteMof(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
