#include "report/Report.h"

#include "text/TextEscape.h"

#include <utility>

namespace strake::report {
namespace {

void MaskSecrets(cim::StoredInstance& instance) {
  for (cim::StoredProperty& property : instance.properties) {
    if (property.schema->role == cim::Role::Secret && !cim::ToText(property.value).empty()) {
      property.value = std::string(kSecretMask);
    }
  }
}

}  // namespace

Report::Report(CollectionFacts facts, std::vector<cim::StoredInstance> instances, Secrets secrets)
    : fFacts(std::move(facts)),
      fInstances(std::move(instances)),
      fEqualKeys(cim::FindEqualKeys(fInstances)) {
  if (secrets == Secrets::Masked) {
    for (cim::StoredInstance& instance : fInstances) {
      MaskSecrets(instance);
    }
  }
}

std::string EqualKeysWarning(const cim::EqualKeys& equal) {
  return std::to_string(equal.count) + " instances of " + std::string(equal.schema->name) +
         " have equal keys: " + text::EscapeForPeople(equal.keys);
}

}  // namespace strake::report
