// A typed CIM property value of the host, and the name-to-value map in which
// the host takes options and the query context. Supplied by the host core
// library.
#pragma once

#include "plugin/host/TCIMDateTime.h"

#include <cstdint>
#include <map>
#include <string>
#include <variant>

namespace NVELKZEV20 {

// Opens a value to the host that stores it; the plug-in only makes values.
struct TCIMValueContent;

class TCIMValue {
 public:
  TCIMValue();
  TCIMValue(const TCIMValue& other);
  // The host takes a property's value wherever it takes one of these types.
  TCIMValue(const std::string& text);       // NOLINT(google-explicit-constructor)
  TCIMValue(const char* text);              // NOLINT(google-explicit-constructor)
  TCIMValue(int number);                    // NOLINT(google-explicit-constructor)
  TCIMValue(unsigned short number);         // NOLINT(google-explicit-constructor)
  TCIMValue(unsigned char number);          // NOLINT(google-explicit-constructor)
  TCIMValue(const TCIMDateTime& dateTime);  // NOLINT(google-explicit-constructor)
  TCIMValue& operator=(const TCIMValue& other);
  ~TCIMValue();

 private:
  friend struct TCIMValueContent;
  std::variant<std::monostate, std::string, std::int32_t, std::uint16_t, std::uint8_t, TCIMDateTime>
      fContent;
};

using TNameToValueMap = std::map<std::string, TCIMValue>;

// The query context: one entry, TCIMSchemaHelper::kContextName mapped to
// TCIMSchemaHelper::kPluginNSPName.
using ContextMap = TNameToValueMap;

}  // namespace NVELKZEV20
