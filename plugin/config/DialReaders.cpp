// The dial readers that send one command for one record: serial port, dial-out
// settings and dial-out alerts.
#include "plugin/config/DialInstances.h"
#include "plugin/config/DialRecords.h"
#include "plugin/config/DotRequest.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

#include <string_view>

namespace strake {

using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::TZEVStatusCode;

namespace {

struct DialReader {
  std::string_view name;
  std::string_view noData;
  InstanceKind kind;
  RecordLayout record;
  bool isNumbered = false;  // the instance tells its number
  // The dial-out reader leaves without a word when its class is not wanted;
  // hosts tell it from the others by that.
  bool completesUnwanted = true;
};

constexpr DialReader kSerialPortReader = {
    .name = "getSerialPortData",
    .noData = "No data retrieved for Serial Port info.",
    .kind = {kDialProtocolEndpoint3, kDialProtocolEndpoint, kDialIdentity},
    .record = kSerialPortRecord,
    .isNumbered = true,
    .completesUnwanted = true,
};
constexpr DialReader kDialoutReader = {
    .name = "getDialoutSettings",
    .noData = "No data retrieved for Dial out settings.",
    .kind = {kDialProtocolEndpoint1, kDialProtocolEndpoint, kDialIdentity},
    .record = kDialoutRecord,
    .isNumbered = true,
    .completesUnwanted = false,
};
constexpr DialReader kAlertReader = {
    .name = "getDialOutAlerts",
    .noData = "No data retrieved for Dialout Alerts.",
    .kind = {kDialProtocolEndpoint4, kDialProtocolEndpoint, kDialIdentity},
    .record = kAlertRecord,
    .isNumbered = false,
    .completesUnwanted = true,
};

void ReadAndPublish(TStrakePluginCallbacks& callbacks, const DialReader& reader,
                    const ServiceProcessor& sp, SharedIdentifier& identifier,
                    unsigned char number) {
  ReplyBuffer<kDialReplySize> reply;
  identifier.Address(number);
  if (!reply.Send(callbacks, sp, identifier.Bytes())) {
    callbacks.LogLevel3(reader.noData);
    return;
  }
  InstanceBuilder& instance = sp.Builder(reader.kind);
  instance.Create(sp.Number());
  instance.IdentifyAll();
  if (reader.isNumbered) {
    instance.Set("Instance", MakeText(number));
  }
  PublishRecord(callbacks, reader.record, reply.Whole(), instance);
  instance.Commit();
}

TZEVStatusCode Read(TStrakePluginCallbacks& callbacks, const DialReader& reader, bool isWanted,
                    const ServiceProcessor& sp, SharedIdentifier& identifier,
                    unsigned char number) {
  callbacks.LogLevel4("TStrakePluginCallbacks::", reader.name, " entered. Instance #", number);
  if (isWanted) {
    ReadAndPublish(callbacks, reader, sp, identifier, number);
  }
  if (isWanted || reader.completesUnwanted) {
    callbacks.LogLevel4("TStrakePluginCallbacks::", reader.name, " completed.");
  }
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::getSerialPortData(const ServiceProcessor& sp,
                                                         unsigned char instance) {
  return Read(*this, kSerialPortReader, fServProc_DialProtocolEndpoint3, sp,
              Identifiers().serialPort, instance);
}

TZEVStatusCode TStrakePluginCallbacks::getDialoutSettings(const ServiceProcessor& sp,
                                                          unsigned char instance) {
  return Read(*this, kDialoutReader, fServProc_DialProtocolEndpoint1, sp, Identifiers().dialout,
              instance);
}

TZEVStatusCode TStrakePluginCallbacks::getDialOutAlerts(const ServiceProcessor& sp,
                                                        unsigned char instance) {
  return Read(*this, kAlertReader, fServProc_DialProtocolEndpoint4, sp, Identifiers().dialOutAlerts,
              instance);
}

}  // namespace strake
