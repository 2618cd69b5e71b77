// What a report says, read back from one of its formats.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace strake::tests {

// All readers throw std::runtime_error for what is not well-formed, strictly.

// The instances of a JSON report: {"class": NAME, "properties": {...}} each, and
// "state" where a sensor has one; not what a sensor's reading is.
nlohmann::ordered_json ReadJsonInstances(const std::string& json);
// The same of CIM-XML, of which texts have what XML cannot hold as \xNN.
nlohmann::ordered_json ReadCimXml(const std::string& xml);
// What an XML document makes of such instances.
nlohmann::ordered_json AsXmlHolds(nlohmann::ordered_json instances);

// Rows of cells; every row ends with CRLF and has as many cells as the first.
std::vector<std::vector<std::string>> ReadCsv(std::string_view csv);

struct MofFile {
  // {"name", "type", "value", "scope": [...], "flavor": [...]} each.
  nlohmann::ordered_json qualifiers = nlohmann::ordered_json::array();
  // {"name", "qualifiers": {NAME: VALUE}, "properties": [{"name", "type", "qualifiers"}]} each.
  nlohmann::ordered_json classes = nlohmann::ordered_json::array();
  // As ReadJsonInstances has them; the state is what a comment before one says.
  nlohmann::ordered_json instances = nlohmann::ordered_json::array();
};

MofFile ReadMof(std::string_view mof);

struct HtmlPage {
  std::vector<std::string> tags;  // of starts, in order: "td class=\"number\""
  std::string text;               // what stands between tags, references as they are
};

// Refuses an element that ends and was not the last one to begin, one that does
// not end, and a ">" that stands alone. What style and script hold is left out.
HtmlPage ReadHtml(std::string_view html);

}  // namespace strake::tests
