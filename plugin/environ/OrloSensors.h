// The sensors that an Orlo card can have, and the dot command that reads each.
#pragma once

#include "plugin/spaccess/DotIdentifier.h"

#include <iterator>

namespace strake {

struct OrloSensorEntry {
  const char* name = nullptr;
  DotIdentifier identifier;
};

inline constexpr OrloSensorEntry kOrloVoltages[] = {
    {"Planar Voltage +5v", {2, 2, 1, 1}},
    {"Planar Voltage +3.3v", {2, 2, 1, 2}},
    {"Planar Voltage +12v", {2, 2, 1, 3}},
    {"Planar Voltage -12v", {2, 2, 1, 4}},
    {"Planar Voltage -5v", {2, 2, 1, 5}},
    {"Planar Voltage +2.5v", {2, 2, 1, 6}},
    {"Planar Voltage +1.5v", {2, 2, 1, 7}},
    {"Planar Voltage +1.8v", {2, 2, 1, 8}},
    {"Planar Voltage +1.25v", {2, 2, 1, 13}},
    {"Planar Battery Voltage", {2, 2, 1, 19}},
    {"CPU Vtt", {2, 2, 1, 20}},
    {"VRM 01", {2, 2, 3, 1}},
    {"VRM 02", {2, 2, 3, 2}},
};

// The capitals differ, and the last name ends in a blank.
inline constexpr OrloSensorEntry kOrloTemperatures[] = {
    {"Center card temperature", {2, 1, 1, 1}},    {"Dravin temperature", {2, 1, 1, 2}},
    {"CPU Area temperature", {2, 1, 1, 3}},       {"PCI Area temperature", {2, 1, 1, 4}},
    {"I/O Area temperature", {2, 1, 1, 5}},       {"Mem Area temperature", {2, 1, 1, 6}},
    {"CPU 1 temperature", {2, 1, 2, 1}},          {"CPU 2 temperature", {2, 1, 2, 2}},
    {"CPU 3 temperature", {2, 1, 2, 3}},          {"CPU 4 temperature", {2, 1, 2, 4}},
    {"System Ambient Temperature", {2, 1, 5, 1}}, {"DASD Sensor 1 Temperature", {2, 1, 4, 1}},
    {"DASD Sensor 2 Temperature ", {2, 1, 4, 2}},
};

inline constexpr OrloSensorEntry kOrloFans[] = {
    {"Fan 01 speed", {2, 3, 1}},  {"Fan 02 speed", {2, 3, 2}},  {"Fan 03 speed", {2, 3, 3}},
    {"Fan 04 speed", {2, 3, 4}},  {"Fan 05 speed", {2, 3, 5}},  {"Fan 06 speed", {2, 3, 6}},
    {"Fan 07 speed", {2, 3, 7}},  {"Fan 08 speed", {2, 3, 8}},  {"Fan 09 speed", {2, 3, 9}},
    {"Fan 10 speed", {2, 3, 10}}, {"Fan 11 speed", {2, 3, 11}}, {"Fan 12 speed", {2, 3, 12}},
    {"Fan 13 speed", {2, 3, 13}}, {"Fan 14 speed", {2, 3, 14}}, {"Fan 15 speed", {2, 3, 15}},
    {"Fan 16 speed", {2, 3, 16}},
};

static_assert(std::size(kOrloVoltages) == 13);
static_assert(std::size(kOrloTemperatures) == 13);
static_assert(std::size(kOrloFans) == 16);

}  // namespace strake
