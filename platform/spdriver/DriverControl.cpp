#include "platform/spdriver/DriverControl.h"

#include "platform/spdriver/Processors.h"

namespace strake::platform {

void SetServiceProcessors(const SpDescription& description) {
  TheDriver().processors = Processors(description);
}

void SetDriverObserver(BoundaryObserver* observer) { TheDriver().observer = observer; }

}  // namespace strake::platform
