#include "plugin/frame/SystemName.h"

#include "plugin/frame/LogLine.h"
#include "plugin/host/TCIMSchemaHelper.h"

#include <exception>

namespace strake {

std::string ReadSystemName(const void* gate,
                           const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace) {
  try {
    std::string systemName = NVELKZEV20::TCIMSchemaHelper::GetSystemName(cimNamespace);
    LogLine(gate, 3, "Obtained SystemName.");
    LogLine(gate, 3, systemName);
    return systemName;
  } catch (const std::exception& error) {
    LogLine(gate, 2, "Unable to obtain SystemName due to caught exception ", error.what());
    return "Unknown SystemName";
  }
}

}  // namespace strake
