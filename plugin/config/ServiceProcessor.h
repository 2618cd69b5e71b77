// One Orlo service processor, as the configuration builders work on it.
#pragma once

#include "plugin/config/InstanceBuilder.h"
#include "plugin/frame/LogLine.h"
#include "plugin/host/ICIM.h"
#include "plugin/spaccess/SPLibrary.h"

#include <boost/shared_ptr.hpp>
#include <string>
#include <utility>

namespace strake {

// The number that people know an SP by: counted from 1, in eight bits.
inline unsigned char NodeNumber(unsigned char sp) { return static_cast<unsigned char>(sp + 1); }

struct ServiceProcessor {
  ServiceProcessor(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace_,
                   NVELKZEV20::SPLibrary* spLib_, std::string machineType_, std::string systemName_,
                   unsigned char index_)
      : cimNamespace(std::move(cimNamespace_)),
        spLib(spLib_),
        machineType(std::move(machineType_)),
        systemName(std::move(systemName_)),
        index(index_),
        nodeName(MakeText(machineType, "-Node", NodeNumber(index_))),
        context(MakeContext()) {}

  // The identity of an instance of this SP, under the SP's own name or another.
  [[nodiscard]] InstanceIdentity Identity() const { return Identity(nodeName); }
  [[nodiscard]] InstanceIdentity Identity(const std::string& name) const {
    return {cimNamespace, context, NodeNumber(index), name, systemName};
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
