// The top of the page: what was collected, and what somebody has to look at.
#pragma once

#include "report/HtmlOut.h"
#include "report/PageView.h"

namespace strake::report {

void AddPageHeader(HtmlOut& out, const CollectionFacts& facts);
void AddSummary(HtmlOut& out, const Report& report, const PageView& page);

}  // namespace strake::report
