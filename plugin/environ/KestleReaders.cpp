// Reads the voltage and temperature lists of a Tavit processor, one Kestle
// command a list.
#include "plugin/environ/KestleSensors.h"
#include "plugin/environ/SensorDecoding.h"
#include "plugin/environ/TSPEnviron.h"
#include "plugin/spaccess/DotIdentifier.h"

namespace strake {

using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::TZEVStatusCode;

struct KestleListReader {
  const char* name;
  const char* subject;  // what the lines on data call it
  KestleRequest request;
  KestleListLayout TavitFamily::*list;
  std::int32_t (*decode)(ByteView reply, std::size_t firstByte, std::size_t i);
  BaseUnits baseUnits;
  std::int32_t unitModifier;
};

namespace {

constexpr KestleListReader kVoltageReader = {
    "GetKestleVoltage",
    "Kestle Voltage",
    kVoltageRequest,
    &TavitFamily::voltages,
    DecodeKestleVoltage,
    kVolts,
    -2,
};
constexpr KestleListReader kTemperatureReader = {
    "GetKestleTemperature",
    "Kestle Temperature",
    kTemperatureRequest,
    &TavitFamily::temperatures,
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
  reply.length =
      sendKestleCommand(kCommandClass, request.code, request.code, request.checksum, nullptr, 0,
                        false, true, reply.bytes.data(), fSpLibrary, &status);
  return status != 0 && reply.length != 0;
}

TZEVStatusCode TSPEnviron::ReadKestleList(const KestleListReader& reader, unsigned int kestleType,
                                          std::vector<SensorRecord>& records) {
  LogLevel4(reader.name, "() entered.");
  KestleReply reply;
  if (AskKestle(reader.request, reply)) {
    LogLevel3("Data retrieved for ", reader.subject);
    DecodeKestleList(reader, kestleType, reply.Whole(), records);
  } else {
    LogLevel3("No data retrieved for ", reader.subject);
  }
  LogLevel4(reader.name, "() completed.");
  return TZEVStatusCode(kZEVSuccess);
}

void TSPEnviron::DecodeKestleList(const KestleListReader& reader, unsigned int kestleType,
                                  ByteView reply, std::vector<SensorRecord>& records) const {
  if (kestleType >= std::size(kTavitFamilies)) {
    LogLevel3("No matching Kestle_Type for ", reader.request.name);
    return;
  }
  const TavitFamily& family = std::span(kTavitFamilies)[kestleType];
  const KestleListLayout& list = family.*reader.list;
  if (KestleReturnLength(reply) != list.expectedLength) {
    LogLevel3("Did not obtain correct returnLength for ", family.name, " ", reader.request.name);
    return;
  }
  for (std::size_t i = 0; i < list.names.size(); ++i) {
    const std::int32_t reading = reader.decode(reply, list.firstByte, i);
    LogLevel3(list.names[i], " = ", reading);
    records.emplace_back(static_cast<std::uint16_t>(i), reading, reader.baseUnits,
                         reader.unitModifier, list.names[i]);
  }
}

}  // namespace strake
