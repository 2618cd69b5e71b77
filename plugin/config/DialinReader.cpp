// Reads one dial-in login: its entry, its authority levels and its last visit,
// each with a command of its own.
#include "plugin/config/DialRecords.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/config/SpClock.h"

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TCIMDateTime;
using NVELKZEV20::TZEVStatusCode;

namespace {

// Unlike its siblings this reader sets the name before the source node.
constexpr IdentityProperty kIdentity[] = {
    IdentityProperty::CreationClassName, IdentityProperty::Name,
    IdentityProperty::SourceNode,        IdentityProperty::SystemCreationClassName,
    IdentityProperty::SystemName,
};
constexpr InstanceKind kDialin = {kDialProtocolEndpoint2, kDialProtocolEndpoint, kIdentity};

// A zero byte of each command's own.
constexpr unsigned char kLoginExtraData = 0;
constexpr unsigned char kAuthorityExtraData = 0;
constexpr unsigned char kTimeZoneExtraData = 0;
constexpr unsigned char kLastLoginExtraData = 0;

void PublishAuthority(const TStrakePluginCallbacks& callbacks, std::uint16_t authority,
                      const InstanceBuilder& instance) {
  callbacks.LogLevel4("Authority Levels value = ", authority);
  unsigned int bits = authority;
  for (const std::string_view level : kAuthorityLevels) {
    const bool isSet = (bits & 1U) != 0;
    instance.Set(level, std::string(isSet ? kEnabledWhenSet.other : kEnabledWhenSet.zero));
    bits >>= 1U;
  }
}

void PublishLastLogin(const TStrakePluginCallbacks& callbacks, const SpTime& time,
                      std::uint16_t timeZone, TCIMDateTime& lastLogin,
                      const InstanceBuilder& instance) {
  callbacks.LogLevel3("LastLogin = ", time.month, "/", time.day, "/", time.year, " ", time.hour,
                      ":", time.minute, ":", time.second, " GMT offset (", timeZone, ")");
  try {
    SetDateTime(lastLogin, time, timeZone);
  } catch (const std::exception&) {
    // Stands for a date that the host does not accept.
    lastLogin.Set(1970, 1, 2, 12, 0, 0, 0, 0);
  }
  instance.Set("LastLogin", lastLogin);
}

void ReadLogin(const SpLink& link, unsigned char number, const InstanceBuilder& instance) {
  const TStrakePluginCallbacks& callbacks = link.callbacks;
  SharedIdentifiers& identifiers = Identifiers();
  DialReply reply;

  identifiers.dialin.Address(number);
  if (link.Ask(identifiers.dialin.Bytes(), reply, &kLoginExtraData)) {
    PublishRecord(callbacks, kDialinRecord, reply.Whole(), instance.Instance());
  } else {
    callbacks.LogLevel3("No data retrieved for Dial in settings.");
  }

  identifiers.dialinAuthority.Address(number);
  if (link.Ask(identifiers.dialinAuthority.Bytes(), reply, &kAuthorityExtraData)) {
    PublishAuthority(callbacks, reply.Whole().LittleEndian16(0), instance);
  } else {
    callbacks.LogLevel3("No data retrieved for Authority Levels.");
  }

  TCIMDateTime lastLogin;
  std::uint16_t timeZone = 0;
  // The time zone comes in over what the authority levels left: a reply of one
  // byte keeps their high byte.
  if (link.AskUncleared(kReadTimeZone.Bytes(), reply, &kTimeZoneExtraData)) {
    timeZone = DecodeUtcOffset(reply.Whole());
    callbacks.LogLevel4("Timezone = ", timeZone);
  } else {
    callbacks.LogLevel3("No data retrieved for Timezone.");
  }

  identifiers.dialinLastLogin.Address(number);
  if (link.Ask(identifiers.dialinLastLogin.Bytes(), reply, &kLastLoginExtraData)) {
    PublishLastLogin(callbacks, DecodeSpTime(reply.Whole()), timeZone, lastLogin, instance);
  } else {
    callbacks.LogLevel3("No data retrieved for Last Login.");
  }
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::getDialinSettings(
    boost::shared_ptr<ICIMNamespace> cimNamespace, unsigned char number, SPLibrary* spLib,
    std::string MTM, std::string systemName, unsigned char sp) {
  LogLevel4("TStrakePluginCallbacks::getDialinSettings entered. Instance #", number);
  const ServiceProcessor processor = {
      {*this, spLib, sp}, std::move(cimNamespace), std::move(MTM), std::move(systemName)};
  if (fServProc_DialProtocolEndpoint2) {
    // Created before the first send and published whatever the four commands
    // bring.
    const InstanceBuilder instance(kDialin, processor.Identity());
    instance.IdentifyAll();
    instance.Set("Instance", MakeText(number));
    ReadLogin(processor.link, number, instance);
    instance.Commit();
  }
  LogLevel4("TStrakePluginCallbacks::getDialinSettings completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
