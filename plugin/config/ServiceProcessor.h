// One Orlo service processor, as the configuration builders work on it.
#pragma once

#include "plugin/config/InstanceBuilder.h"
#include "plugin/frame/Text.h"
#include "plugin/host/ICIM.h"
#include "plugin/spaccess/SPLibrary.h"

#include <boost/shared_ptr.hpp>
#include <optional>
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
  ServiceProcessor(const ServiceProcessor&) = delete;  // the builder refers to it
  ServiceProcessor& operator=(const ServiceProcessor&) = delete;
  ~ServiceProcessor() = default;

  [[nodiscard]] unsigned char Number() const { return NodeNumber(index); }

  // The identity of an instance of this SP, under the SP's own name or another.
  [[nodiscard]] InstanceIdentity Identity() const { return Identity(nodeName); }
  [[nodiscard]] InstanceIdentity Identity(const std::string& name) const {
    return {cimNamespace, context, name, systemName};
  }

  // The builder of the SP's instances of one kind, under its own name. Instances
  // of a kind come one after the other, so the last builder is kept.
  InstanceBuilder& Builder(const InstanceKind& kind) const {
    if (!lastBuilder || &lastBuilder->Kind() != &kind) {
      lastBuilder.emplace(kind, Identity());
    }
    return *lastBuilder;
  }

  boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace;
  NVELKZEV20::SPLibrary* spLib;
  std::string machineType;
  std::string systemName;
  unsigned char index;
  std::string nodeName;  // the machine type, "-Node" and the number
  NVELKZEV20::ContextMap context;
  mutable std::optional<InstanceBuilder> lastBuilder;
};

}  // namespace strake
