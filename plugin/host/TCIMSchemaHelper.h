// Names that the host's schema gives to the hosting computer system. Supplied
// by the host core library.
#pragma once

#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <string>

namespace NVELKZEV20 {

class TCIMSchemaHelper {
 public:
  // May throw a std::exception.
  static std::string GetSystemName(boost::shared_ptr<ICIMNamespace> cimNamespace);
  static std::string GetSystemCreationClassName(boost::shared_ptr<ICIMNamespace> cimNamespace);

  // Key and value of the query context.
  static const std::string kContextName;
  static const std::string kPluginNSPName;
};

}  // namespace NVELKZEV20
