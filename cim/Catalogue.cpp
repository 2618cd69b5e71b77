#include "cim/Catalogue.h"

#include "cim/DialClasses.h"
#include "cim/NetworkClasses.h"
#include "cim/SensorAndSystemClasses.h"

#include <algorithm>

namespace strake::cim {
namespace {

constexpr SchemaClass kClasses[] = {
    {"VELKSG_SP_ComputerSystem", "system", "Computer system", "A service processor and its clock.",
     QueryGroup::ComputerSystem, "", kComputerSystem},
    {"VELKSG_ServProc_IPProtocolEndpoint", "network", "Network interface",
     "A network interface of a service processor, with the values that DHCP assigned to it.",
     QueryGroup::Network, "instance", kIPProtocolEndpoint},
    {"VELKSG_ServProc_IPProtocolEndpoint2", "snmp-dns", "SNMP and DNS",
     "The SNMP and DNS configuration of a service processor.", QueryGroup::Network, "",
     kIPProtocolEndpoint2},
    {"VELKSG_ServProc_DialProtocolEndpoint1", "dial-out", "Dial-out entry",
     "A recipient that a service processor sends alerts to.", QueryGroup::Dial, "Instance",
     kDialOut},
    {"VELKSG_ServProc_DialProtocolEndpoint2", "dial-in", "Dial-in login",
     "A login of a service processor, with its authority and its last use.", QueryGroup::Dial,
     "Instance", kDialIn},
    {"VELKSG_ServProc_DialProtocolEndpoint3", "serial", "Serial port",
     "A serial port of a service processor, with the strings that its modem is given.",
     QueryGroup::Dial, "Instance", kSerialPort},
    {"VELKSG_ServProc_DialProtocolEndpoint4", "alerts", "Dial-out alerts",
     "The kinds of alerts that a service processor sends to its recipients.", QueryGroup::Dial, "",
     kDialOutAlerts},
    {"VELKSG_SP_NumericSensor", "sensors", "Sensors",
     "A voltage, a temperature or a fan speed that a service processor measures.",
     QueryGroup::Sensors, "", kNumericSensor},
};

static_assert(std::ranges::all_of(kClasses, [](const SchemaClass& one) {
  return one.properties.size() <= kMostProperties;
}));

}  // namespace

std::span<const SchemaClass> SchemaClasses() { return kClasses; }

std::vector<std::string> ClassNamesOf(QueryGroup group) {
  std::vector<std::string> names;
  for (const SchemaClass& one : kClasses) {
    if (one.group == group) {
      names.emplace_back(one.name);
    }
  }
  return names;
}

const SchemaClass* FindSchemaClass(std::string_view name) {
  const auto* const found = std::ranges::find(kClasses, name, &SchemaClass::name);
  return found == std::end(kClasses) ? nullptr : found;
}

const SchemaClass* FindClassByAnyName(std::string_view name) {
  const auto* const found = std::ranges::find(kClasses, name, &SchemaClass::shortName);
  return found == std::end(kClasses) ? FindSchemaClass(name) : found;
}

const SchemaProperty* FindSchemaProperty(const SchemaClass& schemaClass, std::string_view name) {
  const auto found = std::ranges::find(schemaClass.properties, name, &SchemaProperty::name);
  return found == schemaClass.properties.end() ? nullptr : &*found;
}

std::string_view CimTypeName(CimType type) {
  constexpr std::array<std::string_view, 5> kNames{"string", "sint32", "uint16", "uint8",
                                                   "datetime"};
  return kNames.at(static_cast<std::size_t>(type));
}

}  // namespace strake::cim
