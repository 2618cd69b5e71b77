#include "platform/hostcore/RepositoryInstance.h"

#include "cim/TCIMValueContent.h"
#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostControl.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace strake::platform {
namespace {

using NVELKZEV20::TCIMDateTime;
using NVELKZEV20::TCIMValue;
using NVELKZEV20::TCIMValueContent;

// An empty value has no type, so nobody can be told of it: it is refused first.
cim::CimType TypeOf(const std::string& name, const TCIMValue& value) {
  struct Types {
    const std::string& name;
    cim::CimType operator()(const std::monostate& /*empty*/) const {
      throw std::invalid_argument("property " + name + " was given an empty value");
    }
    cim::CimType operator()(const std::string& /*text*/) const { return cim::CimType::String; }
    cim::CimType operator()(std::int32_t /*number*/) const { return cim::CimType::Sint32; }
    cim::CimType operator()(std::uint16_t /*number*/) const { return cim::CimType::Uint16; }
    cim::CimType operator()(std::uint8_t /*number*/) const { return cim::CimType::Uint8; }
    cim::CimType operator()(const TCIMDateTime& /*dateTime*/) const {
      return cim::CimType::DateTime;
    }
  };
  return std::visit(Types{name}, TCIMValueContent::Of(value));
}

}  // namespace

RepositoryInstance::RepositoryInstance(const boost::shared_ptr<RepositoryState>& state,
                                       const cim::SchemaClass& schemaClass, unsigned long number)
    : fState(state),
      fSchemaClass(schemaClass),
      fNumber(number),
      fStored{std::string(schemaClass.name), number, {}} {
  fStored.properties.reserve(schemaClass.properties.size());
}

void RepositoryInstance::Commit(NVELKZEV20::TNameToValueMap /*options*/) {
  if (BoundaryObserver* const observer = HostObserver(); observer != nullptr) {
    BeginCall(observer, BoundaryCall::Commit);
    observer->OnCommit(fNumber);
  }
  if (fCommitted) {
    RefuseCommitted("cannot be committed again");
  }
  fState->committed.push_back(std::move(fStored));
  fCommitted = true;
}

void RepositoryInstance::SetProperty(const std::string& name, const TCIMValue& value,
                                     NVELKZEV20::TNameToValueMap /*qualifiers*/) {
  const cim::CimType type = TypeOf(name, value);
  // What is refused was said all the same, so the observer comes first.
  if (BoundaryObserver* const observer = HostObserver(); observer != nullptr) {
    BeginCall(observer, BoundaryCall::SetProperty);
    observer->OnSetProperty(fNumber, name, value);
  }
  if (fCommitted) {
    RefuseCommitted("cannot take property " + name);
  }
  Store(CheckProperty(name, type), name, value);
}

void RepositoryInstance::RefuseCommitted(const std::string& what) const {
  throw std::logic_error("instance " + std::to_string(fNumber) + " of " +
                         std::string(fSchemaClass.name) + " is committed and " + what);
}

std::size_t RepositoryInstance::CheckProperty(const std::string& name, cim::CimType type) const {
  const cim::SchemaProperty* const property = cim::FindSchemaProperty(fSchemaClass, name);
  if (property == nullptr) {
    throw std::invalid_argument("class " + std::string(fSchemaClass.name) + " has no property " +
                                name + " of type " + std::string(cim::CimTypeName(type)));
  }
  if (property->type != type) {
    throw std::invalid_argument("property " + name + " of class " + std::string(fSchemaClass.name) +
                                " has type " + std::string(cim::CimTypeName(property->type)) +
                                ", not " + std::string(cim::CimTypeName(type)));
  }
  return static_cast<std::size_t>(property - fSchemaClass.properties.data());
}

void RepositoryInstance::Store(std::size_t schemaIndex, const std::string& name,
                               const TCIMValue& value) {
  if (!fIsSet.test(schemaIndex)) {
    fStored.properties.emplace_back(name, value);
    fIsSet.set(schemaIndex);
    return;
  }
  std::ranges::find(fStored.properties, name, &std::pair<std::string, TCIMValue>::first)->second =
      value;
}

}  // namespace strake::platform
