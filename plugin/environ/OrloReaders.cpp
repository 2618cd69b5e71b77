// Reads the sensors of an Orlo card, one dot command a sensor.
#include "plugin/environ/OrloSensors.h"
#include "plugin/environ/SensorDecoding.h"
#include "plugin/environ/TSPEnviron.h"

#include <span>

namespace strake {

using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::TZEVStatusCode;

struct OrloReader {
  const char* name;
  std::span<const OrloSensorEntry> sensors;
  std::int32_t (*decode)(ByteView reply);
  BaseUnits baseUnits;
  std::int32_t unitModifier;
  const unsigned char* extraData;  // a zero byte of the reader's own
};

namespace {

constexpr unsigned char kVoltageExtra = 0;
constexpr unsigned char kTemperatureExtra = 0;
constexpr unsigned char kFanExtra = 0;

constexpr OrloReader kVoltageReader = {
    "GetOrloVoltage", kOrloVoltages, DecodeOrloVoltage, kVolts, -2, &kVoltageExtra};
constexpr OrloReader kTemperatureReader = {
    "GetOrloTemps", kOrloTemperatures, DecodeOrloTemperature, kDegreesC, -2, &kTemperatureExtra};
constexpr OrloReader kFanReader = {"GetOrloFans", kOrloFans, DecodeOrloFan,
                                   kPercentage,   0,         &kFanExtra};

}  // namespace

TZEVStatusCode TSPEnviron::GetOrloVoltage() {
  return ReadOrloSensors(kVoltageReader, fOrloVoltages);
}
TZEVStatusCode TSPEnviron::GetOrloTemps() {
  return ReadOrloSensors(kTemperatureReader, fOrloTemps);
}
TZEVStatusCode TSPEnviron::GetOrloFans() { return ReadOrloSensors(kFanReader, fOrloFans); }

TZEVStatusCode TSPEnviron::ReadOrloSensors(const OrloReader& reader,
                                           std::vector<SensorRecord>& records) {
  LogLevel4(reader.name, "() entered.");
  for (std::size_t i = 0; i < reader.sensors.size(); ++i) {
    const OrloSensorEntry& sensor = reader.sensors[i];
    // Fresh zeros for every send: a reply that claims more bytes than it
    // brought must not show another sensor's.
    ReplyBuffer<256> reply;
    unsigned char status = 0;
    const auto identifier = sensor.identifier.Bytes();
    reply.length = sendOrloCommand(kCommandClass, static_cast<int>(identifier.size()), 0,
                                   identifier.data(), reader.extraData, reply.bytes.data(),
                                   static_cast<int>(reply.bytes.size()), &status, fSpLibrary);
    if (status == 0 || reply.length == 0) {
      LogLevel3("No data retrieved for ", sensor.name);
      continue;
    }
    const std::int32_t reading = reader.decode(reply.Received());
    LogLevel3(sensor.name, " = ", reading);
    records.emplace_back(fNode, static_cast<std::uint16_t>(i), reading, reader.baseUnits,
                         reader.unitModifier, sensor.name);
  }
  LogLevel4(reader.name, "() completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
