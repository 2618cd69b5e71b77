// The dial readers that send one command for one record: serial port, dial-out
// settings and dial-out alerts.
#include "plugin/config/DialRecords.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SharedIdentifiers.h"

#include <string_view>
#include <utility>

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TZEVStatusCode;

namespace {

constexpr IdentityProperty kIdentity[] = {
    IdentityProperty::CreationClassName,       IdentityProperty::SourceNode, IdentityProperty::Name,
    IdentityProperty::SystemCreationClassName, IdentityProperty::SystemName,
};

constexpr unsigned char kAlertExtraData = 0;

struct DialReader {
  std::string_view name;
  std::string_view noData;
  InstanceKind kind;
  RecordLayout record;
  DotIdentifier SharedIdentifiers::*identifier;
  const unsigned char* extraData;
  bool isNumbered;       // the instance tells its number
  bool completesAlways;  // the last line is told of a class that is not wanted, too
};

constexpr DialReader kSerialPortReader = {
    .name = "getSerialPortData",
    .noData = "No data retrieved for Serial Port info.",
    .kind = {kDialProtocolEndpoint3, kDialProtocolEndpoint, kIdentity},
    .record = kSerialPortRecord,
    .identifier = &SharedIdentifiers::serialPort,
    .extraData = &kNoExtraData,
    .isNumbered = true,
    .completesAlways = true,
};
constexpr DialReader kDialoutReader = {
    .name = "getDialoutSettings",
    .noData = "No data retrieved for Dial out settings.",
    .kind = {kDialProtocolEndpoint1, kDialProtocolEndpoint, kIdentity},
    .record = kDialoutRecord,
    .identifier = &SharedIdentifiers::dialout,
    .extraData = &kNoExtraData,
    .isNumbered = true,
    .completesAlways = false,
};
constexpr DialReader kAlertReader = {
    .name = "getDialOutAlerts",
    .noData = "No data retrieved for Dialout Alerts.",
    .kind = {kDialProtocolEndpoint4, kDialProtocolEndpoint, kIdentity},
    .record = kAlertRecord,
    .identifier = &SharedIdentifiers::dialOutAlerts,
    .extraData = &kAlertExtraData,
    .isNumbered = false,
    .completesAlways = true,
};

void ReadAndPublish(const DialReader& reader, const ServiceProcessor& sp, unsigned char number) {
  const TStrakePluginCallbacks& callbacks = sp.link.callbacks;
  DialReply reply;
  DotIdentifier& identifier = Identifiers().*reader.identifier;
  identifier.Address(number);
  if (!sp.link.Ask(identifier.Bytes(), reply, reader.extraData)) {
    callbacks.LogLevel3(reader.noData);
    return;
  }
  const InstanceBuilder instance(reader.kind, sp.Identity());
  instance.IdentifyAll();
  if (reader.isNumbered) {
    instance.Set("Instance", MakeText(number));
  }
  PublishRecord(callbacks, reader.record, reply.Whole(), instance.Instance());
  instance.Commit();
}

TZEVStatusCode Read(const DialReader& reader, bool isWanted, const ServiceProcessor& sp,
                    unsigned char number) {
  if (isWanted) {
    ReadAndPublish(reader, sp, number);
  }
  if (isWanted || reader.completesAlways) {
    sp.link.callbacks.LogLevel4("TStrakePluginCallbacks::", reader.name, " completed.");
  }
  return TZEVStatusCode(kZEVSuccess);
}

void LogEntered(const TStrakePluginCallbacks& callbacks, const DialReader& reader,
                unsigned char number) {
  callbacks.LogLevel4("TStrakePluginCallbacks::", reader.name, " entered. Instance #", number);
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::getSerialPortData(
    boost::shared_ptr<ICIMNamespace> cimNamespace, unsigned char number, SPLibrary* spLib,
    std::string MTM, std::string systemName, unsigned char sp) {
  LogEntered(*this, kSerialPortReader, number);
  return Read(kSerialPortReader, fServProc_DialProtocolEndpoint3,
              {{*this, spLib, sp}, std::move(cimNamespace), std::move(MTM), std::move(systemName)},
              number);
}

TZEVStatusCode TStrakePluginCallbacks::getDialoutSettings(
    boost::shared_ptr<ICIMNamespace> cimNamespace, unsigned char number, SPLibrary* spLib,
    std::string MTM, std::string systemName, unsigned char sp) {
  LogEntered(*this, kDialoutReader, number);
  return Read(kDialoutReader, fServProc_DialProtocolEndpoint1,
              {{*this, spLib, sp}, std::move(cimNamespace), std::move(MTM), std::move(systemName)},
              number);
}

TZEVStatusCode TStrakePluginCallbacks::getDialOutAlerts(
    boost::shared_ptr<ICIMNamespace> cimNamespace, unsigned char number, SPLibrary* spLib,
    std::string MTM, std::string systemName, unsigned char sp) {
  LogEntered(*this, kAlertReader, number);
  return Read(kAlertReader, fServProc_DialProtocolEndpoint4,
              {{*this, spLib, sp}, std::move(cimNamespace), std::move(MTM), std::move(systemName)},
              number);
}

}  // namespace strake
