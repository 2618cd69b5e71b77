// What a voltage should be, as its sensor's name states it.
#pragma once

#include <optional>
#include <string_view>

namespace strake::report {

// "Planar Voltage +5v" and "5V Remote" state 5, "-12 Voltage" states -12. Empty
// when the name states none ("CPU 1 Core Voltage", "VRM 01"), states 0, or
// states two that differ.
std::optional<double> NominalVoltage(std::string_view sensorName);

// By how much the reading's size differs, in percent of the nominal.
double DeviationPercent(double reading, double nominal);

}  // namespace strake::report
