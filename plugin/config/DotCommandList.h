// The list of dot commands that an SP supports, in the driver library's own
// three buffers.
#pragma once

#include "plugin/config/SharedIdentifiers.h"
#include "plugin/spaccess/SPLibrary.h"

#include <array>
#include <cstddef>

namespace strake {

class TStrakePluginCallbacks;

class DotCommandList {
 public:
  // Reads the SP's list and logs what came of it.
  DotCommandList(const TStrakePluginCallbacks& callbacks, NVELKZEV20::SPLibrary* spLib);
  DotCommandList(const DotCommandList&) = delete;
  DotCommandList& operator=(const DotCommandList&) = delete;
  ~DotCommandList() = default;

  [[nodiscard]] bool IsBuilt() const { return fIsBuilt; }
  // How many instances of the component there are; -1 when that is not known.
  // Counts are 16 bits wide.
  short CountInstances(SharedIdentifier& component);

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
