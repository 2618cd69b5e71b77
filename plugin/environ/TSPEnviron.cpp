#include "plugin/environ/TSPEnviron.h"

#include <utility>

namespace strake {

TSPEnviron::TSPEnviron(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace,
                       NVELKZEV20::SPLibrary* spLibrary, const void* logSwitch)
    : fNamespace(std::move(cimNamespace)), fSpLibrary(spLibrary), fLogSwitch(logSwitch) {
  LogLevel4("TSPEnviron() constructor entered.");
}

TSPEnviron::~TSPEnviron() {
  try {
    LogLevel4("TSPEnviron destructor entered.");
  } catch (...) {
    // A host whose logger throws loses this line, not its process.
  }
}

}  // namespace strake
