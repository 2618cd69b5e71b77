// Reads the voltage and temperature lists of a Tavit processor, one Kestle
// command a list.
#include "plugin/environ/KestleRequest.h"
#include "plugin/environ/KestleSensors.h"
#include "plugin/environ/SensorDecoding.h"
#include "plugin/environ/TSPEnviron.h"

namespace strake {

using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::TZEVStatusCode;

struct KestleListReader {
  const char* name;
  const char* subject;  // what the lines on data call it
  KestleRequest request;
  std::span<const KestleListLayout> families;
  std::int32_t (*decode)(ByteView reply, std::size_t firstByte, std::size_t i);
  BaseUnits baseUnits;
  std::int32_t unitModifier;
};

namespace {

constexpr KestleListReader kVoltageReader = {
    "GetKestleVoltage",
    "Kestle Voltage",
    {"MSG_VOLTAGE_LIST", 0xA6, 0x5A},
    kKestleVoltages,
    DecodeKestleVoltage,
    kVolts,
    -2,
};
constexpr KestleListReader kTemperatureReader = {
    "GetKestleTemperature",
    "Kestle Temperature",
    {"MSG_TEMPERATURE_LIST", 0xA4, 0x5C},
    kKestleTemperatures,
    DecodeKestleTemperature,
    kDegreesC,
    0,
};

}  // namespace

TZEVStatusCode TSPEnviron::GetKestleVoltage(unsigned int kestleType) {
  return ReadKestleList(kVoltageReader, kestleType, fKestleVoltages);
}

TZEVStatusCode TSPEnviron::GetKestleTemperature(unsigned int kestleType) {
  return ReadKestleList(kTemperatureReader, kestleType, fKestleTemps);
}

bool TSPEnviron::AskKestle(const KestleRequest& request, KestleReply& reply) {
  unsigned char status = 0;
  const int length = sendKestleCommand(2, request.code, request.code, request.checksum, nullptr, 0,
                                       false, true, reply.data(), fSpLibrary, &status);
  return status != 0 && length != 0;
}

TZEVStatusCode TSPEnviron::ReadKestleList(const KestleListReader& reader, unsigned int kestleType,
                                          std::vector<SensorRecord>& records) {
  LogLevel4(reader.name, "() entered.");
  KestleReply reply{};
  if (AskKestle(reader.request, reply)) {
    LogLevel3("Data retrieved for ", reader.subject);
    DecodeKestleList(reader, kestleType, ByteView(reply), records);
  } else {
    LogLevel3("No data retrieved for ", reader.subject);
  }
  LogLevel4(reader.name, "() completed.");
  return TZEVStatusCode(kZEVSuccess);
}

void TSPEnviron::DecodeKestleList(const KestleListReader& reader, unsigned int kestleType,
                                  ByteView reply, std::vector<SensorRecord>& records) {
  if (kestleType >= reader.families.size()) {
    LogLevel3("No matching Kestle_Type for ", reader.request.name);
    return;
  }
  const KestleListLayout& family = reader.families[kestleType];
  if (KestleReturnLength(reply) != family.expectedLength) {
    LogLevel3("Did not obtain correct returnLength for ", family.family, " ", reader.request.name);
    return;
  }
  for (std::size_t i = 0; i < family.names.size(); ++i) {
    const std::int32_t reading = reader.decode(reply, family.firstByte, i);
    LogLevel3(family.names[i], " = ", reading);
    records.emplace_back(static_cast<std::uint16_t>(i), reading, reader.baseUnits,
                         reader.unitModifier, family.names[i]);
  }
}

}  // namespace strake
