// One sensor reading, on its way from a reader to the export.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace strake {

// CIM BaseUnits codes.
enum BaseUnits : std::uint16_t {
  kDegreesC = 2,
  kVolts = 5,
  kRevolutionsPerMinute = 19,
  kPercentage = 65,
};

class SensorRecord {
 public:
  // An Orlo reading: `node` is the SP's instance number, counted from 0;
  // `deviceIndex` is the sensor's place in its reader's table.
  SensorRecord(std::uint16_t node, std::uint16_t deviceIndex, std::int32_t currentReading,
               std::uint16_t baseUnits, std::int32_t unitModifier, std::string description)
      : fNode(node),
        fDeviceIndex(deviceIndex),
        fCurrentReading(currentReading),
        fBaseUnits(baseUnits),
        fUnitModifier(unitModifier),
        fDescription(std::move(description)) {}

  // A Kestle reading: a server has one Tavit processor, node 0.
  SensorRecord(std::uint16_t deviceIndex, std::int32_t currentReading, std::uint16_t baseUnits,
               std::int32_t unitModifier, std::string description)
      : SensorRecord(0, deviceIndex, currentReading, baseUnits, unitModifier,
                     std::move(description)) {}

  [[nodiscard]] std::uint16_t Node() const { return fNode; }
  [[nodiscard]] std::uint16_t DeviceIndex() const { return fDeviceIndex; }
  [[nodiscard]] std::int32_t CurrentReading() const { return fCurrentReading; }
  [[nodiscard]] std::uint16_t Units() const { return fBaseUnits; }
  // The power of ten to apply to the reading.
  [[nodiscard]] std::int32_t UnitModifier() const { return fUnitModifier; }
  [[nodiscard]] const std::string& Description() const { return fDescription; }

 private:
  std::uint16_t fNode;
  std::uint16_t fDeviceIndex;
  std::int32_t fCurrentReading;
  std::uint16_t fBaseUnits;
  std::int32_t fUnitModifier;
  std::string fDescription;
};

}  // namespace strake
