// A value within a JSON text together with the place where it stands, so
// that every refusal can name it. Typed access refuses any other value; each
// refusal throws text::InputError.
#pragma once

#include "json/Value.h"

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace strake::json {

class Field {
 public:
  // The whole text. Text and source must outlive every field made from them.
  Field(const Value& value, const std::string& source);

  [[nodiscard]] bool IsText() const;
  [[nodiscard]] bool IsObject() const;
  [[nodiscard]] bool IsArray() const;

  [[nodiscard]] const std::string& Text() const;
  [[nodiscard]] bool Flag() const;
  // An integer as JSON writes it: 1.0 is none.
  [[nodiscard]] int Integer(int lowest, int highest) const;
  [[nodiscard]] double Number(int lowest, int highest) const;

  // Refuses what is no object, and every key that is not named here.
  void AllowKeys(std::initializer_list<std::string_view> keys) const;
  [[nodiscard]] std::optional<Field> Find(const char* key) const;
  [[nodiscard]] Field Require(const char* key) const;
  // In the order of the keys' bytes.
  void ForEachMember(
      const std::function<void(const std::string& key, const Field& member)>& visit) const;
  [[nodiscard]] std::size_t ItemCount() const;  // refuses what is no array
  void ForEachItem(const std::function<void(const Field& item)>& visit) const;

  // "SOURCE: at POINTER: expected EXPECTED, got VALUE".
  [[noreturn]] void Refuse(const std::string& expected) const;
  // The same, with a reason after the value.
  [[noreturn]] void Refuse(const std::string& expected, const std::string& reason) const;
  // The same for what was found instead of a value.
  [[noreturn]] void RefuseGot(const std::string& expected, const std::string& got) const;

 private:
  Field(const Value& value, const Field& parent, std::string_view token);

  [[nodiscard]] const Value::Object& Members() const;  // refuses what is no object
  [[nodiscard]] const Value::Array& Items() const;     // refuses what is no array

  const Value* fValue;
  const std::string* fSource;
  std::string fPointer;
};

}  // namespace strake::json
