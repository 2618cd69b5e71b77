#include "describe/Skeleton.h"

#include "describe/Examples.h"
#include "describe/ReplyLayout.h"
#include "findings/Commands.h"
#include "findings/TavitLists.h"
#include "platform/server/ElementRecord.h"
#include "plugin/config/Records.h"
#include "report/NominalVoltage.h"

#include <cmath>
#include <span>
#include <string_view>

namespace strake::describe {
namespace {

using findings::TavitList;
using platform::Identifier;
using platform::ReplySequence;
using platform::ServerDescription;
using report::SensorKind;

constexpr int kHundredthsOfCelsius = 2500;
constexpr int kCelsius = 25;
constexpr int kPercent = 50;
constexpr int kRpm = 3000;
// Each processor has as many, whatever is counted.
constexpr unsigned char kSerialPorts = 2;

ReplySequence Answer(const std::string& bytes) {
  return {{.bytes = bytes, .length = static_cast<int>(bytes.size())}};
}

unsigned char LowByte(int number) { return static_cast<unsigned char>(number & 0xFF); }
unsigned char HighByte(int number) { return static_cast<unsigned char>((number >> 8) & 0xFF); }

// What the sensor's name states.
int HundredthsOfVolt(std::string_view sensorName) {
  constexpr double kUsual = 1.2;
  constexpr double kWhole = 100;
  return static_cast<int>(
      std::lround(report::NominalVoltage(sensorName).value_or(kUsual) * kWhole));
}

std::string Record(const RecordLayout& layout) {
  std::string record;
  unsigned char id = 0;
  for (const RecordField& field : layout.fields) {
    const std::string value = ExampleValue(field.name, field.decode);
    ++id;  // from 1, as people count a record's fields
    record +=
        field.form == FieldForm::Plain
            ? platform::PlainElement(id, 0, value)
            : platform::StringElement(id, 0, value, LowByte(static_cast<int>(value.size()) + 1));
  }
  return record;
}

std::string OrloReading(const findings::OrloSensor& sensor) {
  const auto word = [](int number) {
    return std::string{static_cast<char>(LowByte(number)), static_cast<char>(HighByte(number))};
  };
  switch (sensor.kind) {
    case SensorKind::Fan:
      return {static_cast<char>(kPercent)};
    case SensorKind::Voltage:
      return word(HundredthsOfVolt(sensor.name));
    default:
      return word(kHundredthsOfCelsius);
  }
}

std::string OrloReply(const NamedIdentifier& command) {
  if (const auto sensor = findings::FindOrloSensor(findings::Packed(command.identifier.Bytes()))) {
    return OrloReading(findings::OrloSensors()[*sensor]);
  }
  const RecordLayout* const record = FindRecord(command.name);
  return record != nullptr ? Record(*record)
                           : ExampleValue(command.name, FindDecoder(command.name));
}

Identifier OfInstance(const NamedIdentifier& command, unsigned char instance) {
  DotIdentifier identifier = command.identifier;
  if (command.isNumbered) {
    identifier.Address(instance);
  }
  const std::span<const unsigned char> bytes = identifier.Bytes();
  return {bytes.begin(), bytes.end()};
}

// A Tavit list: its length, its code, and its readings from their place on.
class KestleList {
 public:
  KestleList(unsigned char length, unsigned char code) : fBytes(length, '\0') {
    fBytes.at(0) = static_cast<char>(length);
    fBytes.at(1) = static_cast<char>(code);
  }

  void SetByte(std::size_t place, int number) {
    fBytes.at(place) = static_cast<char>(LowByte(number));
  }
  void SetWord(std::size_t place, int number) {
    SetByte(place, HighByte(number));
    SetByte(place + 1, number);
  }
  [[nodiscard]] const std::string& Bytes() const { return fBytes; }

 private:
  std::string fBytes;
};

std::string VoltageList(const KestleListLayout& layout) {
  KestleList list(layout.expectedLength, kVoltageRequest.code);
  for (std::size_t i = 0; i < layout.names.size(); ++i) {
    list.SetWord(layout.firstByte + 2 * i, HundredthsOfVolt(layout.names[i]));
  }
  return list.Bytes();
}

std::string TemperatureList(const KestleListLayout& layout) {
  KestleList list(layout.expectedLength, kTemperatureRequest.code);
  for (std::size_t i = 0; i < layout.names.size(); ++i) {
    list.SetByte(layout.firstByte + i, kCelsius);
  }
  return list.Bytes();
}

// With the most fans that the family can have.
std::string FanList(const TavitFamily& family) {
  constexpr unsigned char kHeader = 2;  // a family without fans is asked, too
  const std::span<const unsigned char> lengths = findings::ExpectedLengths(family, TavitList::Fans);
  const unsigned char length = lengths.empty() ? kHeader : lengths.back();
  KestleList list(length, kFanRequest.code);
  const std::size_t fans = findings::SensorNames(family, TavitList::Fans, length).size();
  for (std::size_t i = 0; i < fans; ++i) {
    list.SetWord(family.fans->firstByte + 2 * i, kRpm);
  }
  return list.Bytes();
}

}  // namespace

ServerDescription OrloSkeleton(const std::string& machineTypeModel) {
  ServerDescription server;
  server.description =
      "A server with one Orlo card, to be filled in: machine type, system name, and what each "
      "command brings back (docs/records.md); a command that the card does not answer is removed, "
      "and components counts network interfaces, dial-out entries and logins";
  server.host.machineTypeModel.text = machineTypeModel;
  server.sp.kind = platform::SpKind::Orlo;
  server.sp.count = 1;
  auto& commands = server.sp.instances.emplace_back();
  for (const NamedIdentifier& command : AllIdentifiers()) {
    commands[OfInstance(command, 1)] = Answer(OrloReply(command));
    if (command.name == "serial port") {
      commands[OfInstance(command, kSerialPorts)] = Answer(OrloReply(command));
    }
  }
  for (const char* const component : {"\4\11\1", "\4\1\3", "\4\1\4"}) {
    server.sp.components[Identifier(component) + '\0' + '\xFF'] = 1;
  }
  return server;
}

ServerDescription TavitSkeleton(const std::string& machineTypeModel) {
  const TavitFamily& family =
      std::span(kTavitFamilies)[findings::FindTavitFamily(machineTypeModel).value()];
  ServerDescription server;
  server.description = std::string("A server of the family ") + family.name +
                       " with a Tavit processor, to be filled in: machine type, system name, and "
                       "the lists of voltages (166), fans (162) and temperatures (164), whose "
                       "first byte is their length (docs/records.md)";
  server.host.machineTypeModel.text = machineTypeModel;
  server.sp.kind = platform::SpKind::Tavit;
  server.sp.kestleCommands[kVoltageRequest.code] = Answer(VoltageList(family.voltages));
  server.sp.kestleCommands[kTemperatureRequest.code] = Answer(TemperatureList(family.temperatures));
  server.sp.kestleCommands[kFanRequest.code] = Answer(FanList(family));
  return server;
}

}  // namespace strake::describe
