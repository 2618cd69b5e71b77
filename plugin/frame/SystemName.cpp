#include "plugin/frame/SystemName.h"

#include "plugin/frame/LogLine.h"
#include "plugin/host/TCIMSchemaHelper.h"

#include <exception>

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::TCIMSchemaHelper;

namespace {

void LogSystemName(const void* gate, const std::string& systemName) {
  LogLine(gate, 3, "Obtained SystemName.");
  LogLine(gate, 3, systemName);
}

std::string UnknownSystemName(const void* gate, const std::exception& error) {
  LogLine(gate, 2, "Unable to obtain SystemName due to caught exception ", error.what());
  return "Unknown SystemName";
}

}  // namespace

std::string ReadSystemName(const void* gate, const boost::shared_ptr<ICIMNamespace>& cimNamespace) {
  try {
    std::string systemName = TCIMSchemaHelper::GetSystemName(cimNamespace);
    LogSystemName(gate, systemName);
    return systemName;
  } catch (const std::exception& error) {
    return UnknownSystemName(gate, error);
  }
}

std::string ReadExportedSystemName(const void* gate,
                                   const boost::shared_ptr<ICIMNamespace>& cimNamespace) {
  std::string systemName;
  try {
    systemName = TCIMSchemaHelper::GetSystemName(cimNamespace);
  } catch (const std::exception& error) {
    return UnknownSystemName(gate, error);
  }
  LogSystemName(gate, systemName);
  return systemName;
}

}  // namespace strake
