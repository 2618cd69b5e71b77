// The report as a page for a browser: one file that asks for no other.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// HTML, in valid UTF-8.
void WriteHtml(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
