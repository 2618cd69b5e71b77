// A JSON value in memory. Letting go of one needs no memory, so that a reader
// that runs out of it can give back what it has.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace strake::json {

struct Value {
  using Array = std::vector<Value>;
  using Object = std::map<std::string, Value>;

  // An unsigned number is one that no std::int64_t holds. An object is never null.
  std::variant<std::nullptr_t, bool, std::int64_t, std::uint64_t, double, std::string, Array,
               std::unique_ptr<Object>>
      content;

  [[nodiscard]] const Array* AsArray() const { return std::get_if<Array>(&content); }
  [[nodiscard]] Array* AsArray() { return std::get_if<Array>(&content); }
  [[nodiscard]] const Object* AsObject() const {
    const auto* const object = std::get_if<std::unique_ptr<Object>>(&content);
    return object == nullptr ? nullptr : object->get();
  }
  [[nodiscard]] Object* AsObject() {
    const auto* const object = std::get_if<std::unique_ptr<Object>>(&content);
    return object == nullptr ? nullptr : object->get();
  }
};

}  // namespace strake::json
