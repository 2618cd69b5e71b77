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
    : fKind(kind), fIdentity(identity) {
  boost::shared_ptr<ICIMClass> cimClass;
  Deref(identity.cimNamespace).GetClass(cimClass, kind.className, identity.context);
  Deref(cimClass).CreateInstance(fInstance, {});
}

void InstanceBuilder::Identify(IdentityProperty property) {
  switch (property) {
    case IdentityProperty::CreationClassName:
      Set("CreationClassName", fKind.creationClassName);
      break;
    case IdentityProperty::SourceNode:
      Set("SourceNode", fIdentity.sourceNode);
      break;
    case IdentityProperty::Name:
      Set("Name", fIdentity.name);
      break;
    case IdentityProperty::SystemCreationClassName:
      // Asked of the host for every instance.
      Set("SystemCreationClassName",
          TCIMSchemaHelper::GetSystemCreationClassName(fIdentity.cimNamespace));
      break;
    case IdentityProperty::SystemName:
      Set("SystemName", fIdentity.systemName);
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

void InstanceBuilder::Commit() { Deref(fInstance).Commit({}); }

}  // namespace strake
