// What the host knows of the machine that it runs on. Supplied by the host
// core library.
#pragma once

#include "plugin/host/TCIMDateTime.h"

#include <string>

namespace NVELKZEV20 {

class TOSSpecific {
 public:
  // The machine type-model; its first four characters are the machine type.
  // May throw a std::exception.
  static std::string GetMachineTypeFromID();
  static TCIMDateTime GetLocalTime();
};

}  // namespace NVELKZEV20
