// Publishes sensor records as numeric-sensor instances.
#include "plugin/environ/TSPEnviron.h"
#include "plugin/frame/base/InstanceBuilder.h"
#include "plugin/frame/base/SystemName.h"

namespace strake {
namespace {

constexpr InstanceKind kNumericSensorKind = {kNumericSensor, kNumericSensor};

}  // namespace

void TSPEnviron::ExportOrloTemps() { Export("ExportOrloTemps", fOrloTemps); }
void TSPEnviron::ExportOrloVoltages() { Export("ExportOrloVoltages", fOrloVoltages); }
void TSPEnviron::ExportOrloFans() { Export("ExportOrloFans", fOrloFans); }
void TSPEnviron::ExportKestleVoltages() { Export("ExportKestleVoltages", fKestleVoltages); }
void TSPEnviron::ExportKestleTemps() { Export("ExportKestleTemps", fKestleTemps); }
void TSPEnviron::ExportKestleFans() { Export("ExportKestleFans", fKestleFans); }

void TSPEnviron::Export(const char* exporter, const std::vector<SensorRecord>& records) {
  LogLevel4(exporter, "() entered.");
  printSensorVector(records);
  LogLevel4(exporter, "() completed.");
}

void TSPEnviron::printSensorVector(const std::vector<SensorRecord>& records) {
  LogLevel4("printSensorVector() entered.");
  const NVELKZEV20::ContextMap context = MakeContext();
  const std::string systemName = ReadSystemName<NameGuard::QuestionOnly>(*this, fNamespace);
  LogLevel4("printSensorVector() entered.");  // a second time
  for (const SensorRecord& record : records) {
    PublishSensor(record, context, systemName);
  }
  LogLevel4("printSensorVector() completed.");
}

void TSPEnviron::PublishSensor(const SensorRecord& record, const NVELKZEV20::ContextMap& context,
                               const std::string& systemName) const {
  const unsigned char node = NodeNumber(record.Node());
  const std::string deviceId = MakeText(record.Description(), "-Node", node);

  LogLevel4("Instance          = ", record.DeviceIndex());
  const InstanceBuilder instance(kNumericSensorKind,
                                 {fNamespace, context, deviceId, systemName, node});
  instance.Identify(IdentityProperty::CreationClassName);
  LogLevel4("SourceNode        = ", node);
  instance.Identify(IdentityProperty::SourceNode);
  instance.Identify(IdentityProperty::SystemCreationClassName);
  instance.Identify(IdentityProperty::SystemName);
  LogLevel4("DeviceID          = ", deviceId);
  instance.Set("DeviceID", deviceId);
  LogLevel4("SensorDescription = ", record.Description());
  instance.Set("SensorDescription", record.Description());
  LogLevel4("CurrentReading    = ", record.CurrentReading());
  instance.Set("CurrentReading", record.CurrentReading());
  LogLevel4("BaseUnits         = ", record.Units());
  instance.Set("BaseUnits", record.Units());
  LogLevel4("UnitModifier      = ", record.UnitModifier());
  instance.Set("UnitModifier", record.UnitModifier());
  instance.Commit();
}

}  // namespace strake
