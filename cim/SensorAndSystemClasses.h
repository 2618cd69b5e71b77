// The catalogue's rows of the computer system and of the sensors.
#pragma once

#include "cim/IdentityProperties.h"

namespace strake::cim {

inline constexpr SchemaProperty kComputerSystem[] = {
    kCreationClassName,
    kSourceNode,
    kName,
    {"SPClock", "Clock", "The time that the clock of the service processor shows.",
     CimType::DateTime},
};

inline constexpr SchemaProperty kNumericSensor[] = {
    kCreationClassName,
    kSourceNode,
    kSystemCreationClassName,
    kSystemName,
    {"DeviceID", "Device",
     "The description of the sensor and the number of its node. Sensors of one description and "
     "node share it.",
     CimType::String, Role::Key},
    {"SensorDescription", "Sensor", "What the sensor measures, and where."},
    {"CurrentReading", "Reading",
     "The reading, to be multiplied by ten to the power of UnitModifier.", CimType::Sint32,
     Role::Plain, "BaseUnits * 10 ^ UnitModifier"},
    {"BaseUnits", "Unit",
     "The unit of the reading: 2 degrees C, 5 volts, 19 revolutions per minute, 65 percentage.",
     CimType::Uint16},
    {"UnitModifier", "Power of ten", "The power of ten that scales the reading.", CimType::Sint32},
};

}  // namespace strake::cim
