// One Orlo service processor, as the configuration builders work on it.
#pragma once

#include "plugin/config/InstanceBuilder.h"
#include "plugin/frame/Text.h"
#include "plugin/host/ICIM.h"
#include "plugin/spaccess/SPLibrary.h"

#include <boost/shared_ptr.hpp>
#include <string>
#include <utility>

namespace strake {

// The number that people know an SP by: counted from 1, in eight bits.
inline unsigned char NodeNumber(unsigned char sp) { return static_cast<unsigned char>(sp + 1); }

struct ServiceProcessor {
  ServiceProcessor(boost::shared_ptr<NVELKZEV20::ICIMNamespace> target,
                   NVELKZEV20::SPLibrary* library, std::string MTM, std::string hostName,
                   unsigned char sp)
      : cimNamespace(std::move(target)),
        spLib(library),
        machineType(std::move(MTM)),
        systemName(std::move(hostName)),
        index(sp),
        nodeName(MakeText(machineType, "-Node", NodeNumber(sp))),
        context(MakeContext()) {}

  [[nodiscard]] unsigned char Number() const { return NodeNumber(index); }

  // The identity of an instance of this SP, under the SP's own name or another.
  [[nodiscard]] InstanceIdentity Identity() const { return Identity(nodeName); }
  [[nodiscard]] InstanceIdentity Identity(const std::string& name) const {
    return {cimNamespace, context, name, systemName};
  }

  boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace;
  NVELKZEV20::SPLibrary* spLib;
  std::string machineType;
  std::string systemName;
  unsigned char index;
  std::string nodeName;  // the machine type, "-Node" and the number
  NVELKZEV20::ContextMap context;
};

}  // namespace strake
