#include "app/AskedCommands.h"

#include "findings/Commands.h"
#include "findings/TavitLists.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace strake::app {
namespace {

using platform::Identifier;

// Of how many instances a component is read.
struct Component {
  std::array<unsigned char, 3> number;  // what all its identifiers begin with
  bool isCounted;
  int least;  // so many are always asked for
  int most;   // further ones are counted, but not asked for
};

constexpr int kAnyCount = 254;

constexpr Component kComponents[] = {
    {{4, 1, 2}, false, 2, 2},         // serial ports
    {{4, 1, 3}, true, 0, kAnyCount},  // dial-out entries
    {{4, 1, 4}, true, 0, kAnyCount},  // dial-in logins
    {{4, 2, 1}, false, 1, 1},         // alerts
    {{4, 9, 1}, true, 1, 2},          // network interfaces
};

std::span<const unsigned char> BytesOf(const Identifier& identifier) {
  return {reinterpret_cast<const unsigned char*>(identifier.data()), identifier.size()};
}

// Null when it is of none.
const Component* ComponentOf(const Identifier& identifier) {
  const std::span<const unsigned char> bytes = BytesOf(identifier);
  const auto* const found = std::ranges::find_if(kComponents, [bytes](const Component& component) {
    return bytes.size() > component.number.size() &&
           std::ranges::equal(component.number, bytes.first(component.number.size()));
  });
  return found == std::end(kComponents) ? nullptr : found;
}

// As it is counted, the instance number 0.
Identifier CountedIdentifier(const Component& component) {
  Identifier identifier(component.number.begin(), component.number.end());
  return identifier + '\0' + '\xFF';
}

// The highest instance number that is asked for.
int HighestInstance(const Component& component, const platform::SpDescription& sp) {
  if (!component.isCounted || !sp.commandList) {
    return component.least;
  }
  const auto count = sp.components.find(CountedIdentifier(component));
  const int counted = count == sp.components.end() ? 0 : count->second;
  return std::clamp(counted, component.least, component.most);
}

}  // namespace

Asked IsDotCommandAsked(const Identifier& identifier, const platform::SpDescription& sp) {
  const auto known = findings::FindCommand(BytesOf(identifier));
  if (!known) {
    return Asked::Never;
  }
  if (!known->instance) {
    return Asked::Yes;
  }
  const Component* const component = ComponentOf(identifier);
  const bool isCounted = component != nullptr && *known->instance >= 1 &&
                         *known->instance <= HighestInstance(*component, sp);
  return isCounted ? Asked::Yes : Asked::BeyondCount;
}

bool IsComponentCounted(const Identifier& identifier) {
  const Component* const component = ComponentOf(identifier);
  return component != nullptr && component->isCounted && identifier.size() == 5 &&
         identifier.back() == '\xFF';
}

bool IsKestleCommandAsked(unsigned char code) { return findings::FindTavitList(code).has_value(); }

bool HasTavitProcessor(const std::string& machineTypeModel) {
  return findings::FindTavitFamily(machineTypeModel).has_value();
}

std::size_t CountedProcessors(const platform::SpDescription& sp) {
  return static_cast<unsigned char>(sp.count);
}

}  // namespace strake::app
