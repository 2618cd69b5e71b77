#include "describe/JsonBlock.h"

#include "text/TextEscape.h"

#include <nlohmann/json.hpp>

namespace strake::describe {

std::string JsonText(std::string_view text) {
  return text::EscapeJson(nlohmann::json(text::ToValidUtf8(text)).dump());
}

JsonBlock::JsonBlock(std::string& out, std::size_t depth, std::string_view brackets)
    : fOut(out), fIndent(2 * depth), fClosing(brackets.back()) {
  fOut += brackets.front();
}

JsonBlock::~JsonBlock() {
  if (!fIsEmpty) {
    fOut += '\n';
    fOut.append(fIndent, ' ');
  }
  fOut += fClosing;
}

void JsonBlock::Item() {
  fOut += fIsEmpty ? "\n" : ",\n";
  fOut.append(fIndent + 2, ' ');
  fIsEmpty = false;
}

void JsonBlock::Key(std::string_view key) {
  Item();
  fOut += '"';
  fOut += key;
  fOut += "\": ";
}

void JsonBlock::Member(std::string_view key, const std::string& json) {
  Key(key);
  fOut += json;
}

}  // namespace strake::describe
