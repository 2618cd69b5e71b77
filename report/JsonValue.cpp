#include "report/JsonValue.h"

#include "text/TextEscape.h"

#include <string>

namespace strake::report {

nlohmann::ordered_json JsonValue(const cim::Value& value) {
  using Json = nlohmann::ordered_json;
  struct Values {
    Json operator()(const std::string& text) const { return text::ToValidUtf8(text); }
    Json operator()(const cim::DateTime& dateTime) const {
      return text::ToValidUtf8(dateTime.Text());
    }
    Json operator()(int number) const { return number; }
  };
  return std::visit(Values{}, value);
}

}  // namespace strake::report
