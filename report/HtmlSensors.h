// The page's sensors: tables by kind, with a picture of each reading.
#pragma once

#include "report/HtmlOut.h"
#include "report/PageView.h"

#include <optional>
#include <string>

namespace strake::report {

// Each sensor with an instance is a row of class "sensor", each one that did not
// answer a row of class "silent".
void AddSensors(HtmlOut& out, const ProcessorView& processor, const ChartScales& scales,
                bool hasStates);

// "23.50 - 42.79 °C" of the sensors of a kind, empty when no reading of it has a
// number; the unit stands once when it is the same.
std::string LowestAndHighest(const ProcessorView& processor, SensorKind kind);

}  // namespace strake::report
