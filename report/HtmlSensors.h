// The page's sensors: tables by kind, with a picture of each reading.
#pragma once

#include "report/ChartScale.h"
#include "report/HtmlOut.h"
#include "report/ProcessorParts.h"

namespace strake::report {

// Each sensor with an instance is a row of class "sensor", each one that did not
// answer a row of class "silent".
void AddSensors(HtmlOut& out, const ProcessorPart& processor, const ChartScales& scales,
                bool hasStates);

}  // namespace strake::report
