#include "fuzz/KnownCommands.h"

#include "plugin/config/SharedIdentifiers.h"
#include "plugin/environ/OrloSensors.h"

#include <initializer_list>
#include <span>

namespace strake::fuzz {
namespace {

using platform::Identifier;

std::vector<KnownCommand> Collect() {
  std::vector<KnownCommand> commands;
  const auto addPlain = [&](std::span<const unsigned char> bytes) {
    commands.push_back({Identifier(bytes.begin(), bytes.end()), false});
  };
  const auto addNumbered = [&](const DotIdentifier& identifier) {
    const std::span<const unsigned char> bytes = identifier.Bytes();
    commands.push_back({Identifier(bytes.begin(), bytes.end()), true});
  };
  const auto addSensors = [&](std::span<const OrloSensorEntry> sensors) {
    for (const OrloSensorEntry& sensor : sensors) addPlain(sensor.identifier.Bytes());
  };

  // Presence test, clock, time zone; location, contact, traps, SNMP versions,
  // communities, DNS.
  static constexpr std::initializer_list<std::initializer_list<unsigned char>> kPlain = {
      {1, 1},          {4, 4, 1},       {4, 4, 2},       {4, 9, 3, 1, 2},      {4, 9, 3, 1, 1},
      {4, 9, 3, 1, 3}, {4, 9, 3, 1, 5}, {4, 9, 3, 1, 6}, {4, 9, 3, 1, 4, 255}, {4, 9, 3, 2, 255},
  };
  for (const auto& bytes : kPlain) addPlain(bytes);
  const SharedIdentifiers shared;
  for (const DotIdentifier& identifier :
       {shared.networkInterface, shared.serialPort, shared.dialout, shared.dialin,
        shared.dialinAuthority, shared.dialinLastLogin, shared.dialOutAlerts}) {
    addNumbered(identifier);
  }
  for (const DotIdentifier& identifier : shared.dhcpValues) addNumbered(identifier);
  addSensors(kOrloVoltages);
  addSensors(kOrloTemperatures);
  addSensors(kOrloFans);
  return commands;
}

}  // namespace

const std::vector<KnownCommand>& KnownCommands() {
  static const std::vector<KnownCommand> commands = Collect();
  return commands;
}

}  // namespace strake::fuzz
