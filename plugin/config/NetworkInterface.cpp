// Reads the configuration summary of one network interface.
#include "plugin/config/NetworkRecords.h"
#include "plugin/config/NetworkReply.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

namespace strake {

void TStrakePluginCallbacks::NetworkInterface(const ServiceProcessor& sp, InstanceBuilder& instance,
                                              unsigned char number) {
  LogLevel4("TStrakePluginCallbacks::NetworkInterface entered.");
  instance.Set("instance", MakeText(number));
  LogLevel3("instance = ", number);

  NetworkReply reply;
  SharedIdentifier& identifier = Identifiers().networkInterface;
  identifier.Address(number);
  if (reply.Send(*this, sp, identifier.Bytes())) {
    PublishRecord(*this, kInterfaceRecord, reply.Whole(), instance);
  } else {
    LogLevel3("No data retrieved for Network Interface Configuration Summary for Instance #",
              number);
  }
  LogLevel4("TStrakePluginCallbacks::NetworkInterface completed.");
}

}  // namespace strake
