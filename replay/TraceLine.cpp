#include "replay/TraceLine.h"

#include "text/DotNotation.h"
#include "text/HexBytes.h"
#include "text/Utf8.h"

#include <cstdint>
#include <optional>

namespace strake::replay {
namespace {

// The text is valid UTF-8: JSON is.
std::string BytesOf(const json::Field& field) {
  std::string_view rest = field.Text();
  std::string bytes;
  bytes.reserve(rest.size());
  while (!rest.empty()) {
    const text::CodePoint front = text::DecodeFront(rest);
    if (front.length == 0 || front.value > 0xFF) {
      field.Refuse("text of the characters U+0000 to U+00FF, one a byte");
    }
    bytes += static_cast<char>(front.value);
    rest.remove_prefix(front.length);
  }
  return bytes;
}

}  // namespace

std::string TraceLine::Text(const char* key) const { return BytesOf(Value(key)); }

std::vector<std::string> TraceLine::Texts(const char* key) const {
  std::vector<std::string> texts;
  Value(key).ForEachItem([&texts](const json::Field& item) { texts.push_back(BytesOf(item)); });
  return texts;
}

int TraceLine::Number(const char* key) const { return Number(key, INT32_MIN, INT32_MAX); }

int TraceLine::Number(const char* key, int lowest, int highest) const {
  return Value(key).Integer(lowest, highest);
}

platform::Identifier TraceLine::Identifier(const char* key) const {
  const json::Field field = Value(key);
  std::optional<std::string> identifier = text::ParseDotNotation(field.Text());
  if (!identifier) {
    field.Refuse("an identifier in dot notation, such as 4.4.1");
  }
  return *std::move(identifier);
}

platform::Reply TraceLine::Reply() const {
  const json::Field hex = Value("reply");
  std::optional<std::string> bytes = text::ParseHexBytes(hex.Text());
  if (!bytes) {
    hex.Refuse("hexadecimal byte pairs");
  }
  return {*std::move(bytes), Number("length"), Flag("result")};
}

platform::HostAnswer TraceLine::ResultOrThrows() const {
  if (Has("throws")) {
    if (Has("result")) {
      fField.RefuseGot("either \"result\" or \"throws\"", "both");
    }
    return {Text("throws"), true};
  }
  return {Text("result"), false};
}

}  // namespace strake::replay
