// The lists of readings that a Tavit processor is asked for, by the family of
// its machine.
#pragma once

#include "plugin/environ/KestleSensors.h"
#include "report/Sensor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace strake::findings {

// In the order in which they are asked for.
enum class TavitList : std::uint8_t { Voltages, Fans, Temperatures };

struct TavitListFacts {
  std::string_view name;  // for people: "voltage list"
  const KestleRequest* request = nullptr;
  report::SensorKind kind = report::SensorKind::Other;
};

inline constexpr std::array<TavitListFacts, 3> kTavitLists{{
    {"voltage list", &kVoltageRequest, report::SensorKind::Voltage},
    {"fan list", &kFanRequest, report::SensorKind::Fan},
    {"temperature list", &kTemperatureRequest, report::SensorKind::Temperature},
}};

// By the command's code.
std::optional<TavitList> FindTavitList(int code);

// The machine types that have a processor.
std::span<const char* const> TavitMachines();

// "5125" of "5125-K2G".
std::string_view MachineType(std::string_view machineTypeModel);

// The place of the machine's family in kTavitFamilies.
std::optional<std::size_t> FindTavitFamily(std::string_view machineTypeModel);

// What byte 0 of the list may be; empty when the family has no such list.
std::span<const unsigned char> ExpectedLengths(const TavitFamily& family, TavitList list);

// The list's sensors, as they are published, of a reply with one of the expected
// lengths.
std::span<const char* const> SensorNames(const TavitFamily& family, TavitList list,
                                         unsigned char length);

}  // namespace strake::findings
