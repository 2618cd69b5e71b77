// The hosting system's name, as the collection driver and the sensor export
// both ask for it.
#pragma once

#include "plugin/host/ICIM.h"
#include "plugin/host/TCIMSchemaHelper.h"

#include <boost/shared_ptr.hpp>
#include <exception>
#include <string>
#include <string_view>

namespace strake {

// What the name's failure covers: the driver's guard takes in the lines on the
// name, the export's the question alone.
enum class NameGuard { QuestionAndLines, QuestionOnly };

// Asks the host and logs what came of it through `owner`. A host that throws a
// std::exception costs the name: "Unknown SystemName".
template <NameGuard Guard, typename Owner>
std::string ReadSystemName(const Owner& owner,
                           const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace) {
  const auto logName = [&owner](std::string_view systemName) {
    owner.LogLevel3("Obtained SystemName.");
    owner.LogLevel3(systemName);
  };
  std::string systemName;
  try {
    systemName = NVELKZEV20::TCIMSchemaHelper::GetSystemName(cimNamespace);
    if constexpr (Guard == NameGuard::QuestionAndLines) {
      logName(systemName);
    }
  } catch (const std::exception& error) {
    owner.LogLevel2("Unable to obtain SystemName due to caught exception ", error.what());
    return "Unknown SystemName";
  }
  if constexpr (Guard == NameGuard::QuestionOnly) {
    logName(systemName);
  }
  return systemName;
}

}  // namespace strake
