#include "app/Property.h"

#include "app/DateTimeText.h"
#include "app/TextEscape.h"

#include <type_traits>

namespace strake::app {

const NVELKZEV20::TCIMValue* FindProperty(const platform::StoredInstance& instance,
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
      return EscapeForPeople(content);
    } else if constexpr (std::is_same_v<Content, NVELKZEV20::TCIMDateTime>) {
      return EscapeForPeople(DateTimeForPeople(content.ToString()));
    } else {
      return std::to_string(content);
    }
  };
  return std::visit(text, NVELKZEV20::TCIMValueContent::Of(value));
}

}  // namespace strake::app
