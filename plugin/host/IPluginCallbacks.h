// The two interfaces that a collector plug-in implements and the host calls.
#pragma once

#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

namespace NVELKZEV20 {

class IPluginCallbacks {
 public:
  virtual ~IPluginCallbacks() = default;                        // slot 0
  virtual void* GetReserved() = 0;                              // slot 1
  [[nodiscard]] virtual std::string GetDisplayName() = 0;       // slot 2
  [[nodiscard]] virtual std::string GetVersion() = 0;           // slot 3
  [[nodiscard]] virtual std::string GetFrameworkVersion() = 0;  // slot 4
  virtual void Destroy() = 0;                                   // slot 5
  virtual void Initialize() = 0;                                // slot 6
  virtual void Deinitialize() = 0;                              // slot 7
};

class IPluginBasicQueryCallbacks {
 public:
  virtual ~IPluginBasicQueryCallbacks() = default;  // slot 0
  // Fills the namespace with instances of the requested classes.
  virtual void Query(boost::shared_ptr<ICIMNamespace> cimNamespace,
                     const std::vector<boost::shared_ptr<ICIMClass>>& classes) = 0;  // slot 1
};

}  // namespace NVELKZEV20
