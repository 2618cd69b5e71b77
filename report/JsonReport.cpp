#include "report/JsonReport.h"

#include "cim/TCIMValueContent.h"
#include "text/TextEscape.h"

#include <type_traits>
#include <variant>

namespace strake::report {
namespace {

void AppendCharacter(std::string& out, char character) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr unsigned char kFirstPlain = 0x20;
  const auto byte = static_cast<unsigned char>(character);
  if (character == '"' || character == '\\') {
    out += '\\';
    out += character;
  } else if (character == '\n') {
    out += "\\n";
  } else if (byte < kFirstPlain) {
    out += "\\u00";
    out += kDigits[byte >> 4U];
    out += kDigits[byte & 0xFU];
  } else {
    out += character;
  }
}

void AppendString(std::string& out, std::string_view text) {
  out += '"';
  for (const char character : text::ToValidUtf8(text)) {
    AppendCharacter(out, character);
  }
  out += '"';
}

void AppendMember(std::string& out, std::string_view name, std::string_view text) {
  AppendString(out, name);
  out += ": ";
  AppendString(out, text);
}

void AppendValue(std::string& out, const NVELKZEV20::TCIMValue& value) {
  const auto append = [&out](const auto& content) {
    using Content = std::decay_t<decltype(content)>;
    if constexpr (std::is_same_v<Content, std::monostate>) {
      out += "null";
    } else if constexpr (std::is_same_v<Content, std::string>) {
      AppendString(out, content);
    } else if constexpr (std::is_same_v<Content, NVELKZEV20::TCIMDateTime>) {
      AppendString(out, content.ToString());
    } else {
      out += std::to_string(content);
    }
  };
  std::visit(append, NVELKZEV20::TCIMValueContent::Of(value));
}

void AppendInstance(std::string& out, const cim::StoredInstance& instance, bool showSecrets) {
  out += '{';
  AppendMember(out, "class", instance.className);
  out += ", \"properties\": {";
  bool isFirst = true;
  for (const auto& [name, value] : instance.properties) {
    out += isFirst ? "" : ", ";
    isFirst = false;
    AppendString(out, name);
    out += ": ";
    if (!showSecrets && IsSecret(name)) {
      AppendString(out, kSecretMask);
    } else {
      AppendValue(out, value);
    }
  }
  out += "}}";
}

}  // namespace

std::string JsonReport(const Report& report) {
  std::string out = "{\n  \"format\": \"strake-report/1\",\n  \"server\": {";
  AppendMember(out, "name", report.server.name);
  out += ", ";
  AppendMember(out, "description", report.server.description);
  out += ", ";
  AppendMember(out, "kind", report.server.kind);
  out += "},\n  \"instances\": [";
  bool isFirst = true;
  for (const cim::StoredInstance& instance : report.instances) {
    out += isFirst ? "\n    " : ",\n    ";
    isFirst = false;
    AppendInstance(out, instance, report.showSecrets);
  }
  out += isFirst ? "]\n}\n" : "\n  ]\n}\n";
  return out;
}

}  // namespace strake::report
