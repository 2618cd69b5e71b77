// The host's root object, its core logger and its plug-in manager.
// GetCoreLogger is supplied by the host core library; GetPluginManager and
// TPluginManagerNamespace by the host plug-in manager library.
#pragma once

#include "plugin/host/ICIM.h"
#include "plugin/host/IPluginCallbacks.h"

#include <boost/shared_ptr.hpp>
#include <string>

namespace NVELKZEV20 {

class ILogger {
 public:
  virtual ~ILogger();                                           // slot 0
  virtual void Log(int level, const std::string& message) = 0;  // slot 1
};

// What registration returns. The plug-in keeps the pointer and tests it for
// null, nothing more.
class TPluginManagerProvider;

class TPluginManagerNamespace : public ICIMNamespace {
 public:
  ~TPluginManagerNamespace() override;
  void GetClass(boost::shared_ptr<ICIMClass>& cimClass, const std::string& name,
                ContextMap context) override;

  // Registers the plug-in; the host keeps the object and ends it.
  TPluginManagerProvider* RegisterPlugin(IPluginCallbacks* plugin);
};

class TRootObject {
 public:
  static boost::shared_ptr<ICIMNamespace> GetPluginManager();
  static ILogger* GetCoreLogger();
};

}  // namespace NVELKZEV20
