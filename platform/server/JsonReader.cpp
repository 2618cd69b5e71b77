#include "platform/server/JsonReader.h"

#include "platform/server/JsonPointer.h"
#include "platform/server/ServerDescription.h"
#include "text/Quote.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace strake::platform {
namespace {

using nlohmann::json;

// Builds the values out of the library's parse events.
class Builder : public nlohmann::json_sax<json> {
 public:
  Builder(std::string_view text, const std::string& source) : fText(text), fSource(source) {}

  json Result() { return std::move(fRoot); }

  bool null() override { return Add(nullptr); }
  bool boolean(bool value) override { return Add(value); }
  bool number_integer(number_integer_t value) override { return Add(value); }
  bool number_unsigned(number_unsigned_t value) override { return Add(value); }
  bool number_float(number_float_t value, const string_t& /*text*/) override { return Add(value); }
  bool string(string_t& value) override { return Add(std::move(value)); }
  bool binary(binary_t& value) override { return Add(std::move(value)); }
  bool start_object(std::size_t /*elements*/) override { return Open(json::object()); }
  bool start_array(std::size_t /*elements*/) override { return Open(json::array()); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }
  bool key(string_t& value) override;
  bool parse_error(std::size_t position, const std::string& lastToken,
                   const nlohmann::detail::exception& error) override;

 private:
  // An object or array that is not closed yet, and where its next value goes.
  struct OpenValue {
    json* value;
    std::string key;
  };

  json& Place(json&& value);
  bool Add(json&& value);
  bool Open(json&& value);
  bool Close();
  [[nodiscard]] std::string Pointer() const;

  std::string_view fText;
  const std::string& fSource;
  json fRoot;
  std::vector<OpenValue> fOpen;
};

json& Builder::Place(json&& value) {
  if (fOpen.empty()) {
    return fRoot = std::move(value);
  }
  json& parent = *fOpen.back().value;
  if (parent.is_object()) {
    return parent[fOpen.back().key] = std::move(value);
  }
  parent.push_back(std::move(value));
  return parent.back();
}

bool Builder::Add(json&& value) {
  Place(std::move(value));
  return true;
}

bool Builder::Open(json&& value) {
  if (fOpen.size() == static_cast<std::size_t>(kDeepestDescription)) {
    throw DescriptionError(fSource + ": at " + PrintablePointer(Pointer()) + ": expected at most " +
                           std::to_string(kDeepestDescription) + " levels of nesting, got more");
  }
  json& placed = Place(std::move(value));
  fOpen.push_back({&placed, {}});
  return true;
}

bool Builder::Close() {
  fOpen.pop_back();
  return true;
}

bool Builder::key(string_t& value) {
  if (fOpen.back().value->contains(value)) {
    throw DescriptionError(fSource + ": at " + PrintablePointer(Pointer()) +
                           ": expected each key once, got " + text::Quoted(value) + " twice");
  }
  fOpen.back().key = std::move(value);
  return true;
}

// Where the innermost open object or array stands.
std::string Builder::Pointer() const {
  std::string pointer;
  for (std::size_t i = 0; i + 1 < fOpen.size(); ++i) {
    const OpenValue& open = fOpen[i];
    AppendToPointer(pointer,
                    open.value->is_object() ? open.key : std::to_string(open.value->size() - 1));
  }
  return pointer;
}

// What the library says, without the head of its message.
std::string Reason(std::string_view what) {
  if (const std::size_t tag = what.find("] "); tag != std::string_view::npos) {
    what.remove_prefix(tag + 2);
  }
  constexpr std::string_view kPlace = "parse error at line ";
  if (what.starts_with(kPlace)) {
    what.remove_prefix(what.find(": ", kPlace.size()) + 2);
  }
  return text::Printable(what);
}

// Line and column of a byte, as people count.
std::string PlaceOf(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto lines = std::ranges::count(before, '\n');
  const std::size_t lastLine = before.rfind('\n') + 1;  // 0 when there is one line
  return "line " + std::to_string(lines + 1) + ", column " +
         std::to_string(before.size() - lastLine + 1);
}

bool Builder::parse_error(std::size_t position, const std::string& /*lastToken*/,
                          const nlohmann::detail::exception& error) {
  throw DescriptionError(fSource + ": " + PlaceOf(fText, position == 0 ? 0 : position - 1) + ": " +
                         Reason(error.what()));
}

}  // namespace

json ReadJson(std::string_view text, const std::string& source) {
  // The library would take a zero byte for the end of the text.
  if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos) {
    throw DescriptionError(source + ": " + PlaceOf(text, zero) +
                           ": expected text, got a zero byte");
  }
  Builder builder(text, source);
  json::sax_parse(text.begin(), text.end(), &builder);
  return builder.Result();
}

}  // namespace strake::platform
