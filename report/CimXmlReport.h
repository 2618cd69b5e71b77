// The instances in CIM-XML, as CIM tools exchange them.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// CIM/DECLARATION/DECLGROUP/VALUE.OBJECT (DSP0203), an instance a line: in commit
// order, properties in the order in which they were set. A sensor's state is a
// QUALIFIER of its instance. What XML cannot hold stands as \xNN.
void WriteCimXml(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
