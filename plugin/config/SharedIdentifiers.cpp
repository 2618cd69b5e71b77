#include "plugin/config/SharedIdentifiers.h"

namespace strake {

SharedIdentifiers& Identifiers() {
  static constinit SharedIdentifiers identifiers;
  return identifiers;
}

}  // namespace strake
