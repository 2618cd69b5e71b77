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

// An empty value has no type, so nobody can be told of it.
void RefuseEmpty(const std::string& name, const TCIMValue& value) {
  if (std::holds_alternative<std::monostate>(TCIMValueContent::Of(value))) {
    throw std::invalid_argument("property " + name + " was given an empty value");
  }
}

// The value is not empty.
cim::Value ValueOf(const TCIMValue& value) {
  struct Values {
    cim::Value operator()(const std::monostate& /*empty*/) const { return {}; }
    cim::Value operator()(const TCIMDateTime& dateTime) const {
      return cim::DateTime(dateTime.ToString());
    }
    cim::Value operator()(const std::string& text) const { return text; }
    cim::Value operator()(std::int32_t number) const { return number; }
    cim::Value operator()(std::uint16_t number) const { return number; }
    cim::Value operator()(std::uint8_t number) const { return number; }
  };
  return std::visit(Values{}, TCIMValueContent::Of(value));
}

}  // namespace

RepositoryInstance::RepositoryInstance(const boost::shared_ptr<RepositoryState>& state,
                                       const cim::SchemaClass& schemaClass, unsigned long number)
    : fState(state), fSchemaClass(schemaClass), fNumber(number), fStored{&schemaClass, number, {}} {
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
  RefuseEmpty(name, value);
  // What is refused was said all the same, so the observer comes first.
  if (BoundaryObserver* const observer = HostObserver(); observer != nullptr) {
    BeginCall(observer, BoundaryCall::SetProperty);
    observer->OnSetProperty(fNumber, name, value);
  }
  if (fCommitted) {
    RefuseCommitted("cannot take property " + name);
  }
  cim::Value stored = ValueOf(value);
  Store(CheckProperty(name, cim::TypeOf(stored)), std::move(stored));
}

void RepositoryInstance::RefuseCommitted(const std::string& what) const {
  throw std::logic_error("instance " + std::to_string(fNumber) + " of " +
                         std::string(fSchemaClass.name) + " is committed and " + what);
}

const cim::SchemaProperty& RepositoryInstance::CheckProperty(const std::string& name,
                                                             cim::CimType type) const {
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
  return *property;
}

void RepositoryInstance::Store(const cim::SchemaProperty& property, cim::Value&& value) {
  const auto place = static_cast<std::size_t>(&property - fSchemaClass.properties.data());
  if (!fIsSet.test(place)) {
    fStored.properties.push_back({&property, std::move(value)});
    fIsSet.set(place);
    return;
  }
  std::ranges::find(fStored.properties, &property, &cim::StoredProperty::schema)->value =
      std::move(value);
}

}  // namespace strake::platform
