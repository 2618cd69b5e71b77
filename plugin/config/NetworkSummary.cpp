#include "plugin/config/NetworkSummary.h"

#include "plugin/config/InstanceBuilder.h"
#include "plugin/config/NetworkRecords.h"
#include "plugin/config/NetworkReply.h"
#include "plugin/config/ValueDecoders.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace strake {
namespace {

constexpr IdentityProperty kIdentity[] = {
    IdentityProperty::CreationClassName,       IdentityProperty::SourceNode, IdentityProperty::Name,
    IdentityProperty::SystemCreationClassName, IdentityProperty::SystemName,
};
constexpr InstanceKind kSummary = {kIPProtocolEndpoint2, kIPProtocolEndpoint2, kIdentity};

struct SummaryCommand {
  std::uint32_t length = 0;
  std::array<unsigned char, 12> bytes = {};  // zeros past the length

  [[nodiscard]] std::span<const unsigned char> Identifier() const {
    return std::span(bytes).first(length);
  }
};

// A value that is a whole reply of its own.
struct SummaryValue {
  std::string_view name;
  SummaryCommand command;
  ValueDecoder decode = nullptr;
};

constexpr SummaryValue kValues[] = {
    {"SystemLocation", {5, {4, 9, 3, 1, 2}}, DecodeText},
    {"SystemContact", {5, {4, 9, 3, 1, 1}}, DecodeText},
    {"Traps", {5, {4, 9, 3, 1, 3}}, DecodeFlag<kEnabledWhenClear>},
    {"SNMPv1", {5, {4, 9, 3, 1, 5}}, DecodeFlag<>},
    {"SNMPv3", {5, {4, 9, 3, 1, 6}}, DecodeFlag<>},
};

struct SummaryRecord {
  std::string_view name;
  SummaryCommand command;
  RecordLayout layout;
};

constexpr SummaryRecord kRecords[] = {
    {"DNS Configuration Summary", {5, {4, 9, 3, 2, 255}}, kDnsRecord},
    {"SNMP Configuration Summary", {6, {4, 9, 3, 1, 4, 255}}, kCommunityRecord},
};

}  // namespace

void PublishNetworkSummary(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp) {
  InstanceBuilder& instance = sp.Builder(kSummary);
  instance.Create(sp.Number());
  instance.IdentifyAll();
  NetworkReply reply;
  std::string text;
  for (const SummaryValue& value : kValues) {
    if (!reply.Send(callbacks, sp, value.command.Identifier())) {
      callbacks.LogLevel3("No data retrieved for ", value.name);
      continue;
    }
    value.decode(reply.Received(), text);
    callbacks.LogLevel3(value.name, " = ", text);
    instance.Set(value.name, text);
  }
  for (const SummaryRecord& record : kRecords) {
    if (!reply.Send(callbacks, sp, record.command.Identifier())) {
      callbacks.LogLevel3("No data retrieved for ", record.name);
      continue;
    }
    PublishRecord(callbacks, record.layout, reply.Whole(), instance);
  }
  instance.Commit();
}

}  // namespace strake
