// The top of the page: what was collected, and what somebody has to look at.
#pragma once

#include "report/HtmlOut.h"
#include "report/ProcessorParts.h"

#include <span>

namespace strake::report {

void AddPageHeader(HtmlOut& out, const CollectionFacts& facts);
void AddSummary(HtmlOut& out, const Report& report, std::span<const ProcessorPart> processors);

}  // namespace strake::report
