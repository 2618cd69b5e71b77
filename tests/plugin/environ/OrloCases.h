// The three Orlo readers as the tests hold them beside the plug-in's own tables.
#pragma once

#include "plugin/environ/OrloSensors.h"
#include "tests/plugin/environ/SensorBench.h"

#include <span>
#include <string>

namespace strake::tests {

struct OrloCase {
  const char* reader;
  std::span<const OrloSensorEntry> sensors;
  NVELKZEV20::TZEVStatusCode (TSPEnviron::*read)();
  const std::vector<SensorRecord>& (TSPEnviron::*records)() const;
  void (TSPEnviron::*publish)();
  int units;
  int modifier;

  [[nodiscard]] int Read(TSPEnviron& collector) const { return (collector.*read)().Code(); }
  [[nodiscard]] const std::vector<SensorRecord>& Records(const TSPEnviron& collector) const {
    return (collector.*records)();
  }
};

inline constexpr OrloCase kOrloVoltageCase = {"GetOrloVoltage",
                                              kOrloVoltages,
                                              &TSPEnviron::GetOrloVoltage,
                                              &TSPEnviron::OrloVoltages,
                                              &TSPEnviron::ExportOrloVoltages,
                                              5,
                                              -2};
inline constexpr OrloCase kOrloTemperatureCase = {"GetOrloTemps",
                                                  kOrloTemperatures,
                                                  &TSPEnviron::GetOrloTemps,
                                                  &TSPEnviron::OrloTemps,
                                                  &TSPEnviron::ExportOrloTemps,
                                                  2,
                                                  -2};
inline constexpr OrloCase kOrloFanCase = {"GetOrloFans",
                                          kOrloFans,
                                          &TSPEnviron::GetOrloFans,
                                          &TSPEnviron::OrloFans,
                                          &TSPEnviron::ExportOrloFans,
                                          65,
                                          0};
inline constexpr const OrloCase* kOrloCases[] = {&kOrloVoltageCase, &kOrloTemperatureCase,
                                                 &kOrloFanCase};

// An identifier in dot notation, without a trailing point.
inline std::string Dotted(const OrloSensorEntry& sensor) {
  std::string text;
  for (const unsigned char byte : sensor.identifier.Bytes()) {
    text += (text.empty() ? "" : ".") + std::to_string(byte);
  }
  return text;
}

// The trail of one send: of a sensor that answers, and of one that does not.
inline Lines Answered(const std::string& identifier, int length) {
  return {"4 sendOrloCommand entered.",
          "4 Sent Orlo command: " + identifier +
              ". Status: ADDR. ReturnDataLen:" + std::to_string(length) + ".",
          "4 sendOrloCommand completed."};
}
inline Lines Unanswered(const std::string& identifier, int length = 0) {
  return {"4 sendOrloCommand entered.",
          "4 Sent Orlo command: " + identifier +
              ". Status: ADDR. ReturnDataLen:" + std::to_string(length) + ".",
          "3 Unable to communicate with system management hardware for dot command: " + identifier +
              ".",
          "4 sendOrloCommand completed."};
}

}  // namespace strake::tests
