#include "app/AskedCommands.h"

#include "plugin/environ/OrloSensors.h"
#include "plugin/frame/TavitMachines.h"
#include "text/DotNotation.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace strake::app {
namespace {

using platform::Identifier;

// A dot command with an instance number, which is its fourth byte.
constexpr std::size_t kInstancePlace = 3;

struct NumberedCommand {
  std::string_view identifier;  // the instance number is 0
  std::string_view counted;     // the component whose count is the highest number, or empty
  int least;                    // so many are always asked for
};

constexpr std::string_view kDialouts = "4.1.3.0.255";
constexpr std::string_view kDialins = "4.1.4.0.255";
constexpr std::string_view kInterfaces = "4.9.1.0.255";

constexpr std::array<std::string_view, 3> kCountedComponents = {kDialouts, kDialins, kInterfaces};

constexpr NumberedCommand kNumberedCommands[] = {
    {"4.1.2.0.255", "", 2},  // serial ports
    {"4.1.3.0.255", kDialouts, 0},
    {"4.1.4.0.255", kDialins, 0},
    {"4.1.4.0.9", kDialins, 0},
    {"4.1.4.0.3", kDialins, 0},
    {"4.2.1.0", "", 1},  // alerts
    {"4.9.1.0.255", kInterfaces, 1},
    {"4.9.1.0.16.1", kInterfaces, 1},
    {"4.9.1.0.16.2", kInterfaces, 1},
    {"4.9.1.0.16.3", kInterfaces, 1},
    {"4.9.1.0.16.4", kInterfaces, 1},
    {"4.9.1.0.16.5", kInterfaces, 1},
    {"4.9.1.0.16.6", kInterfaces, 1},
    {"4.9.1.0.16.7", kInterfaces, 1},
    {"4.9.1.0.16.8", kInterfaces, 1},
    {"4.9.1.0.16.9", kInterfaces, 1},
};

// Interfaces past the second are counted, but not asked for.
constexpr int kMostInterfaces = 2;

// The presence test, clock and time zone, SNMP, DNS, communities.
constexpr std::string_view kSingleCommands[] = {
    "1.1",       "4.4.1",     "4.4.2",     "4.9.3.1.1",   "4.9.3.1.2",
    "4.9.3.1.3", "4.9.3.1.5", "4.9.3.1.6", "4.9.3.2.255", "4.9.3.1.4.255",
};

// Voltages, fans, temperatures.
constexpr std::array<unsigned char, 3> kKestleCodes = {0xA6, 0xA2, 0xA4};

Identifier Bytes(std::string_view dotNotation) {
  return text::ParseDotNotation(dotNotation).value();
}

bool IsSensor(const Identifier& identifier) {
  const auto isOne = [&identifier](const OrloSensorEntry& sensor) {
    return std::ranges::equal(sensor.identifier.Bytes(), identifier, {}, {},
                              [](char byte) { return static_cast<unsigned char>(byte); });
  };
  return std::ranges::any_of(kOrloVoltages, isOne) ||
         std::ranges::any_of(kOrloTemperatures, isOne) || std::ranges::any_of(kOrloFans, isOne);
}

// The highest instance number that is asked for.
int HighestInstance(const NumberedCommand& command, const platform::SpDescription& sp) {
  if (command.counted.empty() || !sp.commandList) {
    return command.least;
  }
  const auto count = sp.components.find(Bytes(command.counted));
  const int counted = count == sp.components.end() ? 0 : count->second;
  return std::max(command.least,
                  command.counted == kInterfaces ? std::min(counted, kMostInterfaces) : counted);
}

Identifier WithoutInstance(Identifier identifier) {
  if (identifier.size() > kInstancePlace) {
    identifier[kInstancePlace] = '\0';
  }
  return identifier;
}

}  // namespace

Asked IsDotCommandAsked(const Identifier& identifier, const platform::SpDescription& sp) {
  const auto isIt = [&identifier](std::string_view name) { return Bytes(name) == identifier; };
  if (std::ranges::any_of(kSingleCommands, isIt) || IsSensor(identifier)) {
    return Asked::Yes;
  }
  const Identifier unnumbered = WithoutInstance(identifier);
  for (const NumberedCommand& command : kNumberedCommands) {
    if (unnumbered == Bytes(command.identifier)) {
      const int instance = static_cast<unsigned char>(identifier[kInstancePlace]);
      const bool isCounted = instance >= 1 && instance <= HighestInstance(command, sp);
      return isCounted ? Asked::Yes : Asked::BeyondCount;
    }
  }
  return Asked::Never;
}

bool IsComponentCounted(const Identifier& identifier) {
  return std::ranges::any_of(kCountedComponents, [&identifier](std::string_view name) {
    return Bytes(name) == WithoutInstance(identifier);
  });
}

bool IsKestleCommandAsked(unsigned char code) {
  return std::ranges::find(kKestleCodes, code) != kKestleCodes.end();
}

bool HasTavitProcessor(const std::string& machineTypeModel) {
  return std::ranges::find(MachineTypeArray, machineTypeModel.substr(0, 4)) !=
         MachineTypeArray.end();
}

std::size_t CountedProcessors(const platform::SpDescription& sp) {
  return static_cast<unsigned char>(sp.count);
}

}  // namespace strake::app
