// Reads one dial-in login: its entry, its authority levels and its last visit,
// each with a command of its own.
#include "plugin/config/DialInstances.h"
#include "plugin/config/DialRecords.h"
#include "plugin/config/DotRequest.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/config/SpClock.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace strake {

using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::TCIMDateTime;
using NVELKZEV20::TCIMValue;
using NVELKZEV20::TZEVStatusCode;

namespace {

using DialinReply = ReplyBuffer<kDialReplySize>;

// Unlike its siblings this reader sets the name before the source node.
constexpr IdentityProperty kIdentity[] = {
    IdentityProperty::CreationClassName, IdentityProperty::Name,
    IdentityProperty::SourceNode,        IdentityProperty::SystemCreationClassName,
    IdentityProperty::SystemName,
};
constexpr InstanceKind kDialin = {kDialProtocolEndpoint2, kDialProtocolEndpoint, kIdentity};

void PublishAuthority(const TStrakePluginCallbacks& callbacks, std::uint16_t authority,
                      InstanceBuilder& instance) {
  callbacks.LogLevel4("Authority Levels value = ", authority);
  const TCIMValue enabled{std::string(kEnabledWhenSet.other)};
  const TCIMValue disabled{std::string(kEnabledWhenSet.zero)};
  unsigned int bits = authority;
  for (const std::string_view level : kAuthorityLevels) {
    instance.Set(level, (bits & 1U) != 0 ? enabled : disabled);
    bits >>= 1U;
  }
}

void PublishLastLogin(const TStrakePluginCallbacks& callbacks, const SpTime& time,
                      std::uint16_t timeZone, TCIMDateTime& lastLogin, InstanceBuilder& instance) {
  callbacks.LogLevel3("LastLogin = ", time.month, "/", time.day, "/", time.year, " ", time.hour,
                      ":", time.minute, ":", time.second, " GMT offset (", timeZone, ")");
  try {
    SetDateTime(lastLogin, time, timeZone);
  } catch (const std::exception&) {
    // The line above has told what the SP said; this is what hosts know as
    // "no usable date".
    lastLogin.Set(1970, 1, 2, 12, 0, 0, 0, 0);
  }
  instance.Set("LastLogin", lastLogin);
}

void ReadLogin(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp, unsigned char number,
               InstanceBuilder& instance) {
  SharedIdentifiers& identifiers = Identifiers();
  DialinReply reply;

  identifiers.dialin.Address(number);
  if (reply.Send(callbacks, sp, identifiers.dialin.Bytes())) {
    PublishRecord(callbacks, kDialinRecord, reply.Whole(), instance);
  } else {
    callbacks.LogLevel3("No data retrieved for Dial in settings.");
  }

  identifiers.dialinAuthority.Address(number);
  if (reply.Send(callbacks, sp, identifiers.dialinAuthority.Bytes())) {
    PublishAuthority(callbacks, reply.Whole().LittleEndian16(0), instance);
  } else {
    callbacks.LogLevel3("No data retrieved for Authority Levels.");
  }

  TCIMDateTime lastLogin;
  std::uint16_t timeZone = 0;
  // The time zone comes in over what the authority levels left: a short reply
  // keeps their high byte, and hosts have always seen that offset.
  if (reply.SendUncleared(callbacks, sp, kReadTimeZone)) {
    timeZone = DecodeUtcOffset(reply.Whole());
    callbacks.LogLevel4("Timezone = ", timeZone);
  } else {
    callbacks.LogLevel3("No data retrieved for Timezone.");
  }

  identifiers.dialinLastLogin.Address(number);
  if (reply.Send(callbacks, sp, identifiers.dialinLastLogin.Bytes())) {
    PublishLastLogin(callbacks, DecodeSpTime(reply.Whole()), timeZone, lastLogin, instance);
  } else {
    callbacks.LogLevel3("No data retrieved for Last Login.");
  }
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::getDialinSettings(const ServiceProcessor& sp,
                                                         unsigned char number) {
  LogLevel4("TStrakePluginCallbacks::getDialinSettings entered. Instance #", number);
  if (fServProc_DialProtocolEndpoint2) {
    // Created before the first send and published whatever the four commands
    // bring.
    InstanceBuilder& instance = sp.Builder(kDialin);
    instance.Create(sp.Number());
    instance.IdentifyAll();
    instance.Set("Instance", MakeText(number));
    ReadLogin(*this, sp, number, instance);
    instance.Commit();
  }
  LogLevel4("TStrakePluginCallbacks::getDialinSettings completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
