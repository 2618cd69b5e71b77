// The simulated service processors: what they were described as, and how far
// each of their reply sequences has come.
#pragma once

#include "platform/server/SpDescription.h"

#include <cstddef>
#include <map>
#include <span>
#include <vector>

namespace strake::platform {

class BoundaryObserver;

class Processors {
 public:
  // Throws std::invalid_argument for a description that breaks its own rules.
  explicit Processors(const SpDescription& description);

  [[nodiscard]] const SpDescription& Description() const { return fDescription; }
  // The next reply to a command; null when there is no such service processor
  // or it does not know the command.
  const Reply* TakeDotReply(int sp, std::span<const unsigned char> identifier);
  const Reply* TakeKestleReply(unsigned char code);

 private:
  // How many replies of a sequence were given, at most all but the last one.
  using Place = std::size_t;

  SpDescription fDescription;
  std::vector<std::map<Identifier, Place>> fDotPlaces;
  std::map<unsigned char, Place> fKestlePlaces;
};

struct DriverState {
  Processors processors{SpDescription{}};
  BoundaryObserver* observer = nullptr;
};

// The process' one driver.
DriverState& TheDriver();

}  // namespace strake::platform
