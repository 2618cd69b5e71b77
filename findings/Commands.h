// The dot commands that the plug-in knows, found by their identifiers.
#pragma once

#include "plugin/config/Records.h"
#include "plugin/environ/OrloSensors.h"
#include "report/Sensor.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace strake::findings {

// An identifier as one number; 0 when it has more than seven bytes, which none
// of the plug-in's has.
constexpr std::uint64_t Packed(std::span<const unsigned char> identifier) {
  if (identifier.size() > 7) {
    return 0;
  }
  std::uint64_t packed = 1;  // so that zeros in front count
  for (const unsigned char byte : identifier) {
    packed = packed << 8U | byte;
  }
  return packed;
}

// A numbered identifier's instance number is any.
struct KnownCommand {
  const NamedIdentifier* command = nullptr;
  std::optional<int> instance = {};  // of a numbered one
};
std::optional<KnownCommand> FindCommand(std::span<const unsigned char> identifier);

// What people call it, safe to show: "SP clock", "serial port 2", "DHCP address
// of interface 1"; an unknown one by its first bytes.
std::string CommandForPeople(std::span<const unsigned char> identifier);
// All that differ from it in the last byte alone: "DHCP values of interface 1".
std::string CommandsForPeople(std::span<const unsigned char> identifier);
// What instances are counted of: "dial-in login".
std::string ComponentForPeople(std::span<const unsigned char> identifier);

struct OrloSensor {
  std::string_view name;  // as it is published
  report::SensorKind kind = report::SensorKind::Other;
  std::uint64_t command = 0;  // packed
};

inline constexpr std::size_t kOrloSensors =
    std::size(kOrloVoltages) + std::size(kOrloTemperatures) + std::size(kOrloFans);

// Every sensor that a card is asked for, in that order.
std::span<const OrloSensor, kOrloSensors> OrloSensors();
// The place of the one with this packed command.
std::optional<std::size_t> FindOrloSensor(std::uint64_t command);

}  // namespace strake::findings
