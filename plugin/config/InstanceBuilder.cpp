#include "plugin/config/InstanceBuilder.h"

#include "plugin/host/Handle.h"
#include "plugin/host/TCIMSchemaHelper.h"

namespace strake {

using NVELKZEV20::ContextMap;
using NVELKZEV20::ICIMClass;
using NVELKZEV20::TCIMSchemaHelper;

ContextMap MakeContext() {
  ContextMap context;
  context.emplace(TCIMSchemaHelper::kContextName, TCIMSchemaHelper::kPluginNSPName);
  return context;
}

InstanceBuilder::InstanceBuilder(const InstanceKind& kind, const InstanceIdentity& identity)
    : fKind(kind),
      fNamespace(identity.cimNamespace),
      fContext(identity.context),
      fClassName(kind.className),
      fCreationClassName(kind.creationClassName),
      fName(identity.name),
      fSystemName(identity.systemName) {}

void InstanceBuilder::Create(unsigned char sourceNode) {
  fSourceNode = sourceNode;
  fInstance.reset();  // a host that gives no handle must not leave the last one
  boost::shared_ptr<ICIMClass> cimClass;
  Deref(fNamespace).GetClass(cimClass, fClassName, fContext);
  Deref(cimClass).CreateInstance(fInstance, {});
}

void InstanceBuilder::Identify(IdentityProperty property) {
  switch (property) {
    case IdentityProperty::CreationClassName:
      Set("CreationClassName", fCreationClassName);
      break;
    case IdentityProperty::SourceNode:
      Set("SourceNode", fSourceNode);
      break;
    case IdentityProperty::Name:
      Set("Name", fName);
      break;
    case IdentityProperty::SystemCreationClassName:
      // Asked of the host for every instance.
      Set("SystemCreationClassName", TCIMSchemaHelper::GetSystemCreationClassName(fNamespace));
      break;
    case IdentityProperty::SystemName:
      Set("SystemName", fSystemName);
      break;
  }
}

void InstanceBuilder::IdentifyAll() {
  for (const IdentityProperty property : fKind.identity) {
    Identify(property);
  }
}

void InstanceBuilder::Set(std::string_view name, const NVELKZEV20::TCIMValue& value) {
  fPropertyName = name;
  Deref(fInstance).SetProperty(fPropertyName, value, {});
}

void InstanceBuilder::Commit() {
  Deref(fInstance).Commit({});
  fInstance.reset();
}

}  // namespace strake
