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

// What the identity of an instance is made of; the namespace and the context
// outlive the builder.
struct InstanceIdentity {
  const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& cimNamespace;
  const NVELKZEV20::ContextMap& context;
  const std::string& name;
  const std::string& systemName;
};

// The query context that every class look-up takes.
NVELKZEV20::ContextMap MakeContext();

class InstanceBuilder {
 public:
  InstanceBuilder(const InstanceKind& kind, const InstanceIdentity& identity);

  [[nodiscard]] const InstanceKind& Kind() const { return fKind; }

  // Creates an instance of the SP that people count as `sourceNode`, from 1; an
  // empty handle from the host goes to its assertion handler. One builder makes
  // any number of instances, one after the other.
  void Create(unsigned char sourceNode);
  void Identify(IdentityProperty property);
  void IdentifyAll();  // in the kind's order
  void Set(std::string_view name, const NVELKZEV20::TCIMValue& value);
  void Commit();  // and lets go of the instance

 private:
  const InstanceKind& fKind;
  const boost::shared_ptr<NVELKZEV20::ICIMNamespace>& fNamespace;
  const NVELKZEV20::ContextMap& fContext;
  unsigned char fSourceNode = 0;
  // Made once, however many instances carry them.
  std::string fClassName;
  NVELKZEV20::TCIMValue fCreationClassName;
  NVELKZEV20::TCIMValue fName;
  NVELKZEV20::TCIMValue fSystemName;
  boost::shared_ptr<NVELKZEV20::ICIMInstance> fInstance;
  std::string fPropertyName;  // keeps its memory from one property to the next
};

}  // namespace strake
