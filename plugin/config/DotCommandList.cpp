#include "plugin/config/DotCommandList.h"

#include "plugin/frame/TStrakePluginCallbacks.h"

namespace strake {

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the library fills the buffers.
DotCommandList::DotCommandList(const TStrakePluginCallbacks& callbacks,
                               NVELKZEV20::SPLibrary* spLib)
    : fSpLib(spLib),
      fIsBuilt(spLib->buildDotCommandList(fFirst.data(), fSecond.data(), fThird.data())) {
  callbacks.LogLevel4(fIsBuilt ? "1.1 command passed : got dotcommand list."
                               : "1.1 command failed: can not build dotcommand list.");
}

short DotCommandList::CountInstances(SharedIdentifier& component) {
  return static_cast<short>(
      fSpLib->getComponentdotCmdList(component.Bytes().data(), static_cast<int>(component.length),
                                     fFirst.data(), fSecond.data(), fThird.data()));
}

}  // namespace strake
