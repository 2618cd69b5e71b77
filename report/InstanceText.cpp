#include "report/InstanceText.h"

#include "report/AddressText.h"
#include "report/Property.h"
#include "report/Report.h"

#include <array>
#include <cstdint>
#include <span>

namespace strake::report {
namespace {

struct Title {
  std::string_view className;
  std::string_view text;
  std::string_view number;  // the property that counts instances; empty: none does
};

constexpr std::array<Title, 8> kTitles{{
    {"VELKSG_SP_ComputerSystem", "Computer system", ""},
    {"VELKSG_ServProc_IPProtocolEndpoint", "Network interface", "instance"},
    {"VELKSG_ServProc_IPProtocolEndpoint2", "SNMP and DNS", ""},
    {"VELKSG_ServProc_DialProtocolEndpoint1", "Dial-out entry", "Instance"},
    {"VELKSG_ServProc_DialProtocolEndpoint2", "Dial-in login", "Instance"},
    {"VELKSG_ServProc_DialProtocolEndpoint3", "Serial port", "Instance"},
    {"VELKSG_ServProc_DialProtocolEndpoint4", "Dial-out alerts", ""},
    {"VELKSG_SP_NumericSensor", "Sensors", ""},
}};

const Title* FindTitle(std::string_view className) {
  for (const Title& title : kTitles) {
    if (title.className == className) {
      return &title;
    }
  }
  return nullptr;
}

std::string JoinSystem(const std::string& name, const std::string& creationClassName) {
  return name + " (" + creationClassName + ")";
}

// A row with a label of its own, of one property or of two.
struct RowRule {
  std::string_view property;
  std::string_view label;
  std::string_view companion;  // shares the row; empty: none does
  std::string (*join)(const std::string& value, const std::string& companion);
};

constexpr std::array<RowRule, 1> kUsualRules{{
    {"SystemName", "System", "SystemCreationClassName", JoinSystem},
}};

// As an administrator writes an interface down.
constexpr std::array<RowRule, 15> kInterfaceRules{{
    {"SystemName", "System", "SystemCreationClassName", JoinSystem},
    {"Enabled", "State", "", nullptr},
    {"HostName", "Host name", "", nullptr},
    {"HostIPAddress", "Address", "HostIPSubnetMask", AddressWithMask},
    {"GatewayIPAddress", "Gateway", "", nullptr},
    {"BurnedInMACAddress", "MAC", "", nullptr},
    {"DHCPEnabled", "Addressing", "", nullptr},
    {"DHCPHostName", "DHCP host name", "", nullptr},
    {"DHCPAssignedIPAddress", "DHCP address", "DHCPAssignedSubnetMask", AddressWithMask},
    {"DHCPAssignedGatewayAddress", "DHCP gateway", "", nullptr},
    {"DHCPDomainName", "DHCP domain", "", nullptr},
    {"DHCPServer", "DHCP server", "", nullptr},
    {"DHCPPrimaryDNS", "DHCP primary DNS", "", nullptr},
    {"DHCPSecondaryDNS", "DHCP secondary DNS", "", nullptr},
    {"DHCPTertiaryDNS", "DHCP tertiary DNS", "", nullptr},
}};

std::span<const RowRule> RulesOf(std::string_view className) {
  if (className == "VELKSG_ServProc_IPProtocolEndpoint") {
    return kInterfaceRules;
  }
  return kUsualRules;
}

class RowWriter {
 public:
  RowWriter(const cim::StoredInstance& instance, bool showSecrets)
      : fInstance(&instance), fShowSecrets(showSecrets), fRules(RulesOf(instance.className)) {}

  [[nodiscard]] std::vector<Row> Rows() const {
    std::vector<Row> rows;
    for (const auto& [name, value] : fInstance->properties) {
      if (!IsSaidElsewhere(name, value)) {
        rows.push_back(RowOf(name, value));
      }
    }
    return rows;
  }

 private:
  // In the group's heading, in the title, or in another property's row.
  [[nodiscard]] bool IsSaidElsewhere(std::string_view name,
                                     const NVELKZEV20::TCIMValue& value) const {
    if (name == "SourceNode") {
      return SourceNode(*fInstance).has_value();
    }
    if (name == "CreationClassName") {
      return ValueForPeople(value) == fInstance->className;
    }
    const Title* const title = FindTitle(fInstance->className);
    if (title != nullptr && name == title->number) {
      return true;
    }
    for (const RowRule& rule : fRules) {
      if (name == rule.companion) {
        return FindProperty(*fInstance, rule.property) != nullptr;
      }
    }
    return false;
  }

  [[nodiscard]] std::string TextOf(std::string_view name,
                                   const NVELKZEV20::TCIMValue& value) const {
    return !fShowSecrets && IsSecret(name) ? std::string(kSecretMask) : ValueForPeople(value);
  }

  [[nodiscard]] Row RowOf(std::string_view name, const NVELKZEV20::TCIMValue& value) const {
    for (const RowRule& rule : fRules) {
      if (name == rule.property) {
        return {std::string(rule.label), JoinedText(rule, value)};
      }
    }
    return {std::string(name), TextOf(name, value)};
  }

  [[nodiscard]] std::string JoinedText(const RowRule& rule,
                                       const NVELKZEV20::TCIMValue& value) const {
    std::string text = TextOf(rule.property, value);
    const NVELKZEV20::TCIMValue* const companion =
        rule.companion.empty() ? nullptr : FindProperty(*fInstance, rule.companion);
    return companion == nullptr ? text : rule.join(text, TextOf(rule.companion, *companion));
  }

  const cim::StoredInstance* fInstance;
  bool fShowSecrets;
  std::span<const RowRule> fRules;
};

}  // namespace

std::optional<int> SourceNode(const cim::StoredInstance& instance) {
  const auto* const node = FindPropertyOf<std::uint8_t>(instance, "SourceNode");
  return node == nullptr ? std::nullopt : std::optional<int>(*node);
}

std::string InstanceTitle(const cim::StoredInstance& instance) {
  const Title* const title = FindTitle(instance.className);
  if (title == nullptr) {
    return instance.className;
  }
  std::string text(title->text);
  if (const NVELKZEV20::TCIMValue* const number = FindProperty(instance, title->number)) {
    text.append(" ").append(ValueForPeople(*number));
  }
  return text + " (" + instance.className + ")";
}

std::vector<Row> InstanceRows(const cim::StoredInstance& instance, bool showSecrets) {
  return RowWriter(instance, showSecrets).Rows();
}

}  // namespace strake::report
