// Makes one CIM instance: class look-up, identity, properties, commit. Every
// instance of this plug-in is made here, so that they identify themselves and
// their SP alike.
#pragma once

#include "plugin/frame/ClassNames.h"
#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <span>
#include <string>
#include <string_view>

namespace strake {

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
  unsigned char sourceNode;  // the SP as people count it, from 1
  const std::string& name;
  const std::string& systemName;
};

// The query context that every class look-up takes.
NVELKZEV20::ContextMap MakeContext();

class InstanceBuilder {
 public:
  // Creates the instance; an empty handle from the host goes to its assertion
  // handler.
  InstanceBuilder(const InstanceKind& kind, const InstanceIdentity& identity);

  void Identify(IdentityProperty property);
  void IdentifyAll();  // in the kind's order
  void Set(std::string_view name, const NVELKZEV20::TCIMValue& value);
  void Commit();

 private:
  const InstanceKind& fKind;
  InstanceIdentity fIdentity;
  boost::shared_ptr<NVELKZEV20::ICIMInstance> fInstance;
  std::string fPropertyName;  // keeps its memory from one property to the next
};

}  // namespace strake
