#include "json/Reader.h"

#include "json/Pointer.h"
#include "text/InputError.h"
#include "text/Quote.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace strake::json {
namespace {

// A text's characters, the white space between its values as blanks: the
// library repeats in a message all that it read since the last string or number,
// and a line feed takes eight bytes there.
class Characters {
 public:
  // NOLINTBEGIN(readability-identifier-naming): as the library looks for them
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = char;
  using iterator_category = std::input_iterator_tag;
  // NOLINTEND(readability-identifier-naming)

  Characters(std::string_view text, std::size_t place) : fText(text), fPlace(place) {}

  char operator*() const {
    const char character = fText[fPlace];
    const bool isWhiteSpace = character == '\n' || character == '\r' || character == '\t';
    return isWhiteSpace && !fIsInString ? ' ' : character;
  }

  Characters& operator++() {
    const char character = fText[fPlace++];
    if (fIsEscaped) {
      fIsEscaped = false;
    } else if (character == '"') {
      fIsInString = !fIsInString;
    } else {
      fIsEscaped = fIsInString && character == '\\';
    }
    return *this;
  }

  bool operator==(const Characters& other) const { return fPlace == other.fPlace; }

 private:
  std::string_view fText;
  std::size_t fPlace;
  bool fIsInString = false;
  bool fIsEscaped = false;
};

// Line and column of a byte, as people count.
std::string PlaceInText(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto lines = std::ranges::count(before, '\n');
  const std::size_t lastLine = before.rfind('\n') + 1;  // 0 when there is one line
  return ": line " + std::to_string(lines + 1) + ", column " +
         std::to_string(before.size() - lastLine + 1);
}

// The column alone, behind a source that names the line.
std::string PlaceInLine(std::string_view /*line*/, std::size_t offset) {
  return ", column " + std::to_string(offset + 1);
}

// A text, and how to say where in it something stands.
struct Text {
  std::string_view text;
  const std::string& source;
  std::string (*place)(std::string_view text, std::size_t offset);

  [[nodiscard]] std::string SourceAndPlace(std::size_t offset) const {
    return source + place(text, offset);
  }
};

// Builds the values out of the library's parse events.
class Builder : public nlohmann::json_sax<nlohmann::json> {
 public:
  Builder(const Text& text, const Bounds& bounds)
      : fText(text), fSource(text.source), fBounds(bounds) {}

  Value Result() { return std::move(fRoot); }

  bool null() override { return Add({nullptr}); }
  bool boolean(bool value) override { return Add({value}); }
  bool number_integer(number_integer_t value) override { return Add({value}); }
  bool number_unsigned(number_unsigned_t value) override;
  bool number_float(number_float_t value, const string_t& /*text*/) override {
    return Add({value});
  }
  // The library's string has room for more than its text.
  bool string(string_t& value) override { return Add({std::string(value)}); }
  bool binary(binary_t& /*value*/) override { return false; }  // JSON has none
  bool start_object(std::size_t /*elements*/) override {
    return Open({std::make_unique<Value::Object>()});
  }
  bool start_array(std::size_t /*elements*/) override { return Open({Value::Array()}); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }
  bool key(string_t& value) override;
  bool parse_error(std::size_t position, const std::string& lastToken,
                   const nlohmann::detail::exception& error) override;

 private:
  // An object or array that is not closed yet, and where its next value goes.
  struct OpenValue {
    Value* value;
    std::string key;
  };

  Value& Place(Value&& value);
  bool Add(Value&& value);
  bool Open(Value&& value);
  bool Close();
  [[nodiscard]] std::string Pointer() const;

  const Text& fText;
  const std::string& fSource;
  Bounds fBounds;
  Value fRoot;
  std::vector<OpenValue> fOpen;
  std::size_t fValues = 0;
};

Value& Builder::Place(Value&& value) {
  if (++fValues > fBounds.mostValues) {
    throw text::InputError(fSource + ": at " + PrintablePointer(Pointer()) + ": expected at most " +
                           std::to_string(fBounds.mostValues) +
                           " values in the whole text, got more");
  }
  if (fOpen.empty()) {
    return fRoot = std::move(value);
  }
  Value& parent = *fOpen.back().value;
  if (Value::Object* const object = parent.AsObject()) {
    return (*object)[fOpen.back().key] = std::move(value);
  }
  return parent.AsArray()->emplace_back(std::move(value));
}

bool Builder::number_unsigned(number_unsigned_t value) {
  if (value <= static_cast<number_unsigned_t>(INT64_MAX)) {
    return Add({static_cast<std::int64_t>(value)});
  }
  return Add({value});
}

bool Builder::Add(Value&& value) {
  Place(std::move(value));
  return true;
}

bool Builder::Open(Value&& value) {
  if (fOpen.size() == static_cast<std::size_t>(fBounds.deepest)) {
    throw text::InputError(fSource + ": at " + PrintablePointer(Pointer()) + ": expected at most " +
                           std::to_string(fBounds.deepest) + " levels of nesting, got more");
  }
  Value& placed = Place(std::move(value));
  fOpen.push_back({&placed, {}});
  return true;
}

bool Builder::Close() {
  fOpen.pop_back();
  return true;
}

bool Builder::key(string_t& value) {
  if (fOpen.back().value->AsObject()->contains(value)) {
    throw text::InputError(fSource + ": at " + PrintablePointer(Pointer()) +
                           ": expected each key once, got " + text::Quoted(value) + " twice");
  }
  fOpen.back().key = value;
  return true;
}

// Where the innermost open object or array stands.
std::string Builder::Pointer() const {
  std::string pointer;
  for (std::size_t i = 0; i + 1 < fOpen.size(); ++i) {
    const OpenValue& open = fOpen[i];
    const Value::Array* const array = open.value->AsArray();
    AppendToPointer(pointer, array == nullptr ? open.key : std::to_string(array->size() - 1));
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

bool Builder::parse_error(std::size_t position, const std::string& /*lastToken*/,
                          const nlohmann::detail::exception& error) {
  throw text::InputError(fText.SourceAndPlace(position == 0 ? 0 : position - 1) + ": " +
                         Reason(error.what()));
}

Value Read(const Text& text, const Bounds& bounds) {
  // The library would take a zero byte for the end of the text.
  if (const std::size_t zero = text.text.find('\0'); zero != std::string_view::npos) {
    throw text::InputError(text.SourceAndPlace(zero) + ": expected text, got a zero byte");
  }
  Builder builder(text, bounds);
  nlohmann::json::sax_parse(Characters(text.text, 0), Characters(text.text, text.text.size()),
                            &builder);
  return builder.Result();
}

}  // namespace

Value Read(std::string_view text, const std::string& source, const Bounds& bounds) {
  return Read(Text{text, source, PlaceInText}, bounds);
}

Value ReadLine(std::string_view line, const std::string& source, const Bounds& bounds) {
  return Read(Text{line, source, PlaceInLine}, bounds);
}

}  // namespace strake::json
