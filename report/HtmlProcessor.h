// One service processor on the page.
#pragma once

#include "report/HtmlOut.h"
#include "report/PageView.h"

namespace strake::report {

// "Service processor 1", "No service processor"; where a link to it leads.
void AddProcessorName(HtmlOut& out, const ProcessorView& processor);
void AddProcessorAnchor(HtmlOut& out, const ProcessorView& processor);
// With a shape.
void AddAnswered(HtmlOut& out, const ProcessorView& processor);
// How far its clock is off the host's; nothing when it has none.
void AddClock(HtmlOut& out, const ProcessorView& processor, std::chrono::sys_seconds hostTime);

void AddProcessor(HtmlOut& out, const Report& report, const PageView& page,
                  const ProcessorView& processor);

}  // namespace strake::report
