// Makes one CIM instance: class look-up, identity, properties, commit. Every
// instance of this plug-in is made here, so that they identify themselves and
// their SP alike.
#pragma once

#include "plugin/frame/base/ClassNames.h"
#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <span>
#include <string>
#include <string_view>

namespace strake {

// The number of an SP in its instances: they are counted from 1, in eight bits,
// where `sp`, the SP's index, counts from 0.
constexpr unsigned char NodeNumber(unsigned int sp) { return static_cast<unsigned char>(sp + 1); }

enum class IdentityProperty {
  CreationClassName,
  SourceNode,
  Name,
  SystemCreationClassName,
  SystemName,
};

struct InstanceKind {
  const char* className;
  const char* creationClassName;
  std::span<const IdentityProperty> identity = {};  // in the order in which they are set
};

// What the identity of an instance is made of; all of it outlives the builder.
struct InstanceIdentity {
  const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace;
  const NVELKZEV20::ContextMap& context;
  const std::string& name;
  const std::string& systemName;
  unsigned char node;
};

// The query context that a class look-up takes.
NVELKZEV20::ContextMap MakeContext();

// Sets one property. The value is the caller's temporary: it ends with the call.
void SetProperty(const boost::shared_ptr<NVELKZEV20::ICIMInstance>& instance, std::string_view name,
                 const NVELKZEV20::TCIMValue& value);

class InstanceBuilder {
 public:
  // Looks the class up and creates the instance; an empty handle from the host
  // goes to its assertion handler.
  InstanceBuilder(const InstanceKind& kind, const InstanceIdentity& identity);

  [[nodiscard]] const boost::shared_ptr<NVELKZEV20::ICIMInstance>& Instance() const {
    return fInstance;
  }

  void Identify(IdentityProperty property) const;
  void IdentifyAll() const;  // in the kind's order
  void Set(std::string_view name, const NVELKZEV20::TCIMValue& value) const;
  void Commit() const;

 private:
  const InstanceKind& fKind;
  const InstanceIdentity fIdentity;
  boost::shared_ptr<NVELKZEV20::ICIMInstance> fInstance;
};

}  // namespace strake
