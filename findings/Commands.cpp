#include "findings/Commands.h"

#include "cim/Catalogue.h"
#include "text/DotNotation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace strake::findings {
namespace {

using report::SensorKind;

constexpr std::array<OrloSensor, kOrloSensors> MakeOrloSensors() {
  std::array<OrloSensor, kOrloSensors> all{};
  auto next = all.begin();
  const auto addEach = [&next](const auto& entries, SensorKind kind) {
    for (const OrloSensorEntry& entry : entries) {
      *next++ = {entry.name, kind, Packed(entry.identifier.Bytes())};
    }
  };
  addEach(kOrloVoltages, SensorKind::Voltage);
  addEach(kOrloTemperatures, SensorKind::Temperature);
  addEach(kOrloFans, SensorKind::Fan);
  return all;
}

constexpr std::array<OrloSensor, kOrloSensors> kAllOrloSensors = MakeOrloSensors();

struct SensorPlace {
  std::uint64_t command = 0;
  std::size_t place = 0;
};

constexpr std::array<SensorPlace, kOrloSensors> MakeSensorPlaces() {
  std::array<SensorPlace, kOrloSensors> places{};
  for (std::size_t place = 0; place < places.size(); ++place) {
    places.at(place) = {kAllOrloSensors.at(place).command, place};
  }
  std::ranges::sort(places, {}, &SensorPlace::command);
  return places;
}

constexpr std::array<SensorPlace, kOrloSensors> kSensorPlaces = MakeSensorPlaces();

bool IsCommand(const NamedIdentifier& command, std::span<const unsigned char> identifier) {
  const std::span<const unsigned char> known = command.identifier.Bytes();
  if (known.size() != identifier.size()) {
    return false;
  }
  for (std::size_t place = 0; place < known.size(); ++place) {
    const bool isAny = command.isNumbered && place == DotIdentifier::kInstancePlace;
    if (!isAny && known[place] != identifier[place]) {
      return false;
    }
  }
  return true;
}

// The label of the property that is published under the name; empty when none is.
std::string_view LabelOf(std::string_view name) {
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    if (const auto* const property = cim::FindSchemaProperty(schema, name)) {
      return property->label;
    }
  }
  return {};
}

std::string UnknownForPeople(std::span<const unsigned char> identifier) {
  constexpr std::size_t kShown = 8;
  if (identifier.empty()) {
    return "a command without identifier";
  }
  return "command " + text::DotNotation(identifier.first(std::min(identifier.size(), kShown))) +
         (identifier.size() > kShown ? "..." : "");
}

}  // namespace

std::optional<KnownCommand> FindCommand(std::span<const unsigned char> identifier) {
  for (const NamedIdentifier& command : AllIdentifiers()) {
    if (IsCommand(command, identifier)) {
      KnownCommand found{&command};
      if (command.isNumbered) {
        found.instance = identifier[DotIdentifier::kInstancePlace];
      }
      return found;
    }
  }
  return std::nullopt;
}

std::string CommandForPeople(std::span<const unsigned char> identifier) {
  const std::optional<KnownCommand> known = FindCommand(identifier);
  if (!known) {
    return UnknownForPeople(identifier);
  }
  const std::string_view label = LabelOf(known->command->name);
  std::string name(label.empty() ? known->command->name : label);
  if (!known->instance) {
    return name;
  }
  // Of the numbered commands those of the interfaces alone bring one value.
  return name + (label.empty() ? " " : " of interface ") + std::to_string(*known->instance);
}

std::string CommandsForPeople(std::span<const unsigned char> identifier) {
  const std::optional<KnownCommand> known = FindCommand(identifier);
  if (known && known->instance) {
    return "DHCP values of interface " + std::to_string(*known->instance);
  }
  const std::size_t last = identifier.empty() ? 0 : identifier.size() - 1;
  return "commands " + text::DotNotation(identifier.first(last)) + ".*";
}

std::string ComponentForPeople(std::span<const unsigned char> identifier) {
  const std::optional<KnownCommand> known = FindCommand(identifier);
  return known ? std::string(known->command->name) : UnknownForPeople(identifier);
}

std::span<const OrloSensor, kOrloSensors> OrloSensors() { return kAllOrloSensors; }

std::optional<std::size_t> FindOrloSensor(std::uint64_t command) {
  const auto* const found =
      std::ranges::lower_bound(kSensorPlaces, command, {}, &SensorPlace::command);
  if (found == kSensorPlaces.end() || found->command != command) {
    return std::nullopt;
  }
  return found->place;
}

}  // namespace strake::findings
