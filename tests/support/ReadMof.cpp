#include "tests/support/ReadBack.h"

#include <cctype>
#include <charconv>
#include <stdexcept>

namespace strake::tests {
namespace {

using nlohmann::ordered_json;

void AppendUtf8(std::string& out, unsigned int value) {
  if (value < 0x80) {
    out += static_cast<char>(value);
  } else if (value < 0x800) {
    out += static_cast<char>(0xC0U | (value >> 6U));
    out += static_cast<char>(0x80U | (value & 0x3FU));
  } else {
    out += static_cast<char>(0xE0U | (value >> 12U));
    out += static_cast<char>(0x80U | ((value >> 6U) & 0x3FU));
    out += static_cast<char>(0x80U | (value & 0x3FU));
  }
}

class MofReader {
 public:
  explicit MofReader(std::string_view text) : fText(text) { Skip(); }

  MofFile File() {
    MofFile file;
    while (!fText.empty()) {
      const std::string comment = fComment;
      const ordered_json qualifiers = Qualifiers();
      const std::string word = Word();
      if (word == "Qualifier") {
        file.qualifiers.push_back(Declaration());
      } else if (word == "class") {
        file.classes.push_back(Class(qualifiers));
      } else if (word == "instance" && Word() == "of") {
        file.instances.push_back(Instance(comment));
      } else {
        Refuse("a declaration");
      }
    }
    return file;
  }

 private:
  [[noreturn]] void Refuse(const std::string& expected) const {
    throw std::runtime_error("MOF: expected " + expected + ", got '" +
                             std::string(fText.substr(0, 40)) + "'");
  }

  // White space and comments of one line, of which the last one is kept.
  void Skip() {
    fComment.clear();
    while (!fText.empty()) {
      if (std::isspace(static_cast<unsigned char>(fText.front())) != 0) {
        fText.remove_prefix(1);
      } else if (fText.starts_with("//")) {
        const std::size_t end = fText.find('\n');
        if (end == fText.npos) Refuse("an end of the comment");
        fComment = fText.substr(2, end - 2);
        fText.remove_prefix(end + 1);
      } else {
        return;
      }
    }
  }

  bool Takes(char punctuation) {
    if (!fText.starts_with(punctuation)) return false;
    fText.remove_prefix(1);
    Skip();
    return true;
  }

  void Take(char punctuation) {
    if (!Takes(punctuation)) Refuse(std::string("a ") + punctuation);
  }

  std::string Word() {
    std::size_t length = 0;
    while (length < fText.size() &&
           (std::isalnum(static_cast<unsigned char>(fText[length])) != 0 || fText[length] == '_')) {
      ++length;
    }
    if (length == 0) Refuse("a word");
    const std::string word(fText.substr(0, length));
    fText.remove_prefix(length);
    Skip();
    return word;
  }

  // Behind the backslash.
  void AppendEscaped(std::string& out) {
    constexpr std::string_view kLetters = "btnfr\"'\\";
    constexpr std::string_view kCharacters = "\b\t\n\f\r\"'\\";
    const std::size_t letter = fText.empty() ? kLetters.npos : kLetters.find(fText.front());
    if (letter != kLetters.npos) {
      out += kCharacters[letter];
      fText.remove_prefix(1);
      return;
    }
    unsigned int value = 0;
    const char* const first = fText.data() + 1;
    const char* const last = fText.data() + std::min<std::size_t>(fText.size(), 5);
    if (!fText.starts_with('x') || std::from_chars(first, last, value, 16).ptr != last ||
        last != first + 4 || (value >= 0xD800 && value < 0xE000)) {
      Refuse("an escape");
    }
    AppendUtf8(out, value);
    fText.remove_prefix(5);
  }

  std::string Text() {
    std::string text;
    while (fText.starts_with('"')) {
      fText.remove_prefix(1);
      while (!fText.starts_with('"')) {
        if (fText.empty() || static_cast<unsigned char>(fText.front()) < 0x20 ||
            fText.front() == '\'') {
          Refuse("a character of a string");
        }
        const char character = fText.front();
        fText.remove_prefix(1);
        if (character == '\\') {
          AppendEscaped(text);
        } else {
          text += character;
        }
      }
      fText.remove_prefix(1);
      Skip();
    }
    return text;
  }

  ordered_json Value() {
    if (fText.starts_with('"')) return Text();
    const bool isNegative = Takes('-');
    const std::string word = Word();
    if (word == "true" || word == "false") return word == "true";
    if (word == "null") return nullptr;
    std::int64_t number = 0;
    if (std::from_chars(word.data(), word.data() + word.size(), number).ptr !=
        word.data() + word.size()) {
      Refuse("a value, not " + word);
    }
    return isNegative ? -number : number;
  }

  // [Key, Description("..."), ...] or nothing.
  ordered_json Qualifiers() {
    ordered_json qualifiers = ordered_json::object();
    if (!Takes('[')) return qualifiers;
    do {
      const std::string name = Word();
      if (qualifiers.contains(name)) Refuse("one qualifier " + name);
      qualifiers[name] = true;
      if (Takes('(')) {
        qualifiers[name] = Value();
        Take(')');
      }
    } while (Takes(','));
    Take(']');
    return qualifiers;
  }

  ordered_json Words(const std::string& name) {
    if (Word() != name) Refuse(name);
    Take('(');
    ordered_json words = ordered_json::array();
    do {
      words.push_back(Word());
    } while (Takes(','));
    Take(')');
    return words;
  }

  ordered_json Declaration() {
    ordered_json declaration;
    declaration["name"] = Word();
    Take(':');
    declaration["type"] = Word();
    Take('=');
    declaration["value"] = Value();
    Take(',');
    declaration["scope"] = Words("Scope");
    Take(',');
    declaration["flavor"] = Words("Flavor");
    Take(';');
    return declaration;
  }

  ordered_json Class(const ordered_json& qualifiers) {
    ordered_json result{{"name", Word()}, {"qualifiers", qualifiers}};
    ordered_json properties = ordered_json::array();
    Take('{');
    while (!Takes('}')) {
      ordered_json property;
      property["qualifiers"] = Qualifiers();
      property["type"] = Word();
      property["name"] = Word();
      Take(';');
      properties.push_back(property);
    }
    Take(';');
    result["properties"] = properties;
    return result;
  }

  ordered_json Instance(const std::string& comment) {
    constexpr std::string_view kState = " State: ";
    ordered_json result{{"class", Word()}, {"properties", ordered_json::object()}};
    Take('{');
    while (!Takes('}')) {
      const std::string name = Word();
      if (result["properties"].contains(name)) Refuse("one property " + name);
      Take('=');
      result["properties"][name] = Value();
      Take(';');
    }
    Take(';');
    if (comment.starts_with(kState)) result["state"] = comment.substr(kState.size());
    return result;
  }

  std::string_view fText;
  std::string fComment;
};

}  // namespace

MofFile ReadMof(std::string_view mof) { return MofReader(mof).File(); }

}  // namespace strake::tests
