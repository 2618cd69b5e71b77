// One service processor on the page.
#pragma once

#include "report/ChartScale.h"
#include "report/HtmlOut.h"
#include "report/ProcessorParts.h"

namespace strake::report {

// "Service processor 1", "No service processor"; where a link to it leads.
void AddProcessorName(HtmlOut& out, const ProcessorPart& processor);
void AddProcessorAnchor(HtmlOut& out, const ProcessorPart& processor);
// Whether it answered, with a shape; nothing of no service processor.
void AddAnswered(HtmlOut& out, const ProcessorPart& processor);
// How far its clock is off the host's; nothing when it has none.
void AddClock(HtmlOut& out, const ProcessorPart& processor, std::chrono::sys_seconds hostTime);

void AddProcessor(HtmlOut& out, const Report& report, const ChartScales& scales,
                  const ProcessorPart& processor);

}  // namespace strake::report
