#include "plugin/config/Records.h"

#include "plugin/config/DialRecords.h"
#include "plugin/config/NetworkRecords.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/config/SpClock.h"
#include "plugin/environ/OrloSensors.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace strake {
namespace {

constexpr NamedRecord kRecords[] = {
    {"serial port", kSerialPortRecord},      {"dial-out settings", kDialoutRecord},
    {"dial-in login", kDialinRecord},        {"dial-out alerts", kAlertRecord},
    {"network interface", kInterfaceRecord}, {"DNS summary", kDnsRecord},
    {"SNMP communities", kCommunityRecord},
};

constexpr NamedIdentifier kFixed[] = {
    {"presence test", kPresenceTest, false},
    {"SP clock", kReadClock, false},
    {"SP time zone", kReadTimeZone, false},
};

struct NamedMember {
  std::string_view name;
  DotIdentifier SharedIdentifiers::*member;
};

constexpr NamedMember kShared[] = {
    {"network interface", &SharedIdentifiers::networkInterface},
    {"serial port", &SharedIdentifiers::serialPort},
    {"dial-out settings", &SharedIdentifiers::dialout},
    {"dial-in login", &SharedIdentifiers::dialin},
    {"dial-in authority levels", &SharedIdentifiers::dialinAuthority},
    {"dial-in last login", &SharedIdentifiers::dialinLastLogin},
    {"dial-out alerts", &SharedIdentifiers::dialOutAlerts},
};
static_assert(sizeof(SharedIdentifiers) ==
                  (std::size(kShared) + std::size(kDhcpValues)) * sizeof(DotIdentifier),
              "a shared identifier has no name here");

constexpr std::size_t kIdentifiers = std::size(kFixed) + std::size(kSummaryValues) +
                                     std::size(kSummaryRecords) + std::size(kShared) +
                                     std::size(kDhcpValues) + std::size(kOrloVoltages) +
                                     std::size(kOrloTemperatures) + std::size(kOrloFans);

constexpr std::array<NamedIdentifier, kIdentifiers> MakeIdentifiers() {
  std::array<NamedIdentifier, kIdentifiers> all{};
  const SharedIdentifiers shared;
  auto next = std::copy(std::begin(kFixed), std::end(kFixed), all.begin());
  const auto addEach = [&next](const auto& entries) {
    for (const auto& entry : entries) {
      *next++ = {entry.name, entry.identifier, false};
    }
  };
  addEach(kSummaryValues);
  addEach(kSummaryRecords);
  for (const NamedMember& named : kShared) {
    *next++ = {named.name, shared.*named.member, true};
  }
  auto dhcpIdentifier = shared.dhcpValues.begin();
  for (const DhcpValue& value : kDhcpValues) {
    *next++ = {value.name, *dhcpIdentifier++, true};
  }
  addEach(kOrloVoltages);
  addEach(kOrloTemperatures);
  addEach(kOrloFans);
  return all;
}

}  // namespace

std::span<const NamedRecord> AllRecords() { return kRecords; }

std::span<const NamedIdentifier> AllIdentifiers() {
  static constexpr std::array<NamedIdentifier, kIdentifiers> kAll = MakeIdentifiers();
  return kAll;
}

}  // namespace strake
