#include "report/Property.h"

#include "report/DateTimeForPeople.h"
#include "text/TextEscape.h"

#include <type_traits>

namespace strake::report {

const NVELKZEV20::TCIMValue* FindProperty(const cim::StoredInstance& instance,
                                          std::string_view name) {
  for (const auto& [propertyName, value] : instance.properties) {
    if (propertyName == name) {
      return &value;
    }
  }
  return nullptr;
}

std::string ValueForPeople(const NVELKZEV20::TCIMValue& value) {
  const auto text = [](const auto& content) {
    using Content = std::decay_t<decltype(content)>;
    if constexpr (std::is_same_v<Content, std::monostate>) {
      return std::string("(no value)");
    } else if constexpr (std::is_same_v<Content, std::string>) {
      return text::EscapeForPeople(content);
    } else if constexpr (std::is_same_v<Content, NVELKZEV20::TCIMDateTime>) {
      return text::EscapeForPeople(DateTimeForPeople(content.ToString()));
    } else {
      return std::to_string(content);
    }
  };
  return std::visit(text, NVELKZEV20::TCIMValueContent::Of(value));
}

}  // namespace strake::report
