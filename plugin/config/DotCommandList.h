// The list of dot commands that an SP supports, in the driver library's own
// three buffers.
#pragma once

#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/spaccess/DotIdentifier.h"
#include "plugin/spaccess/SPLibrary.h"

#include <array>
#include <span>

namespace strake {

class DotCommandList {
 public:
  // Reads the SP's list and logs what came of it.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the library fills the buffers.
  DotCommandList(const TStrakePluginCallbacks& callbacks, NVELKZEV20::SPLibrary* spLib)
      : fSpLib(spLib),
        fIsBuilt(spLib->buildDotCommandList(fFirst.data(), fSecond.data(), fThird.data())) {
    callbacks.LogLevel4(fIsBuilt ? "1.1 command passed : got dotcommand list."
                                 : "1.1 command failed: can not build dotcommand list.");
  }
  DotCommandList(const DotCommandList&) = delete;
  DotCommandList& operator=(const DotCommandList&) = delete;
  ~DotCommandList() = default;

  [[nodiscard]] bool IsBuilt() const { return fIsBuilt; }
  // How many instances of the component there are; -1 when that is not known.
  // Counts are 16 bits wide.
  short CountInstances(DotIdentifier& component) {
    const std::span<unsigned char> identifier = component.Bytes();
    return static_cast<short>(
        fSpLib->getComponentdotCmdList(identifier.data(), static_cast<int>(identifier.size()),
                                       fFirst.data(), fSecond.data(), fThird.data()));
  }

 private:
  // The library fills the buffers and is the only one to read them, so nobody
  // clears them.
  using Buffer = std::array<unsigned char, 4096>;

  NVELKZEV20::SPLibrary* fSpLib;
  Buffer fFirst;
  Buffer fSecond;
  Buffer fThird;
  bool fIsBuilt;
};

}  // namespace strake
