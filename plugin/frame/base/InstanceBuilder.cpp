#include "plugin/frame/base/InstanceBuilder.h"

#include "plugin/host/Handle.h"
#include "plugin/host/TCIMSchemaHelper.h"

namespace strake {

using NVELKZEV20::ContextMap;
using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::TCIMSchemaHelper;
using NVELKZEV20::TCIMValue;

ContextMap MakeContext() {
  ContextMap context;
  context.emplace(TCIMSchemaHelper::kContextName, TCIMSchemaHelper::kPluginNSPName);
  return context;
}

void SetProperty(const boost::shared_ptr<ICIMInstance>& instance, std::string_view name,
                 const TCIMValue& value) {
  Deref(instance).SetProperty(std::string(name), value, {});
}

InstanceBuilder::InstanceBuilder(const InstanceKind& kind, const InstanceIdentity& identity)
    : fKind(kind), fIdentity(identity) {
  boost::shared_ptr<ICIMClass> cimClass;
  Deref(identity.cimNamespace).GetClass(cimClass, kind.className, identity.context);
  Deref(cimClass).CreateInstance(fInstance, {});
}

void InstanceBuilder::Identify(IdentityProperty property) const {
  switch (property) {
    case IdentityProperty::CreationClassName:
      Set("CreationClassName", fKind.creationClassName);
      break;
    case IdentityProperty::SourceNode:
      Set("SourceNode", fIdentity.node);
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

void InstanceBuilder::IdentifyAll() const {
  for (const IdentityProperty property : fKind.identity) {
    Identify(property);
  }
}

void InstanceBuilder::Set(std::string_view name, const TCIMValue& value) const {
  SetProperty(fInstance, name, value);
}

void InstanceBuilder::Commit() const { Deref(fInstance).Commit({}); }

}  // namespace strake
