// One line of a trace: its keys, as the values that a trace writes.
#pragma once

#include "json/Field.h"
#include "platform/server/HostSettings.h"
#include "platform/server/Reply.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace strake::replay {

// Each member throws text::InputError for a key that is not there and for a
// value of another kind.
class TraceLine {
 public:
  explicit TraceLine(const json::Field& field) : fField(field) {}

  // Refuses every key that is not named here.
  void AllowKeys(std::initializer_list<std::string_view> keys) const { fField.AllowKeys(keys); }

  [[nodiscard]] bool Has(const char* key) const { return fField.Find(key).has_value(); }
  [[nodiscard]] json::Field Value(const char* key) const { return fField.Require(key); }
  // The bytes, of which the line writes each as the code point of its value.
  [[nodiscard]] std::string Text(const char* key) const;
  [[nodiscard]] std::vector<std::string> Texts(const char* key) const;
  [[nodiscard]] bool Flag(const char* key) const { return Value(key).Flag(); }
  // Any that the driver library reports.
  [[nodiscard]] int Number(const char* key) const;
  [[nodiscard]] int Number(const char* key, int lowest, int highest) const;
  [[nodiscard]] platform::Identifier Identifier(const char* key) const;
  // "result", "length" and "reply" of a send.
  [[nodiscard]] platform::Reply Reply() const;
  // "result" or "throws".
  [[nodiscard]] platform::HostAnswer ResultOrThrows() const;

 private:
  json::Field fField;
};

}  // namespace strake::replay
