#include "tests/support/ReadBack.h"

#include <cstdint>
#include <pugixml.hpp>
#include <set>
#include <stdexcept>

namespace strake::tests {
namespace {

using nlohmann::ordered_json;

void Expect(bool holds, const std::string& what) {
  if (!holds) throw std::runtime_error("CIM-XML: " + what);
}

// What clients with a parser of their own stumble over, a reader does not see.
void CheckSpelling(std::string_view xml) {
  constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
  Expect(xml.starts_with(kDeclaration), "no declaration");
  xml.remove_prefix(kDeclaration.size());
  for (const char* const refused : {"/>", "<!", "<?", "]]>", "\r"}) {
    Expect(xml.find(refused) == xml.npos, std::string("it holds ") + refused);
  }
  for (std::size_t at = xml.find('&'); at != xml.npos; at = xml.find('&', at + 1)) {
    bool isNamed = false;
    for (const char* const name : {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"}) {
      isNamed = isNamed || xml.substr(at).starts_with(name);
    }
    Expect(isNamed, "a reference that is none of the five");
  }
}

// The element's children, all elements of these names, with these attributes.
std::vector<pugi::xml_node> Children(const pugi::xml_node& element,
                                     const std::set<std::string>& names,
                                     const std::string& attributes) {
  std::vector<pugi::xml_node> children;
  for (const pugi::xml_node& child : element.children()) {
    if (child.type() == pugi::node_pcdata) {
      Expect(std::string(child.value()) == "\n", "text between elements");
      continue;
    }
    Expect(names.contains(child.name()), std::string("an element ") + child.name());
    std::string found;
    for (const pugi::xml_attribute& attribute : child.attributes()) {
      found += std::string(" ") + attribute.name();
    }
    Expect(found == attributes, std::string(child.name()) + " has the attributes" + found);
    children.push_back(child);
  }
  return children;
}

pugi::xml_node OnlyChild(const pugi::xml_node& element, const std::string& name,
                         const std::string& attributes = "") {
  const auto children = Children(element, {name}, attributes);
  Expect(children.size() == 1, "not one " + name);
  return children.front();
}

ordered_json ValueOf(const pugi::xml_node& element) {
  const std::string type = element.attribute("TYPE").value();
  const pugi::xml_node value = OnlyChild(element, "VALUE");
  for (const pugi::xml_node& child : value.children()) {
    Expect(child.type() == pugi::node_pcdata, "VALUE holds more than text");
  }
  const std::string text = value.child_value();
  if (type == "string" || type == "datetime") return text;
  Expect(type == "sint32" || type == "uint16" || type == "uint8", "the type " + type);
  return ordered_json::parse(text);
}

ordered_json InstanceOf(const pugi::xml_node& instance) {
  ordered_json result{{"class", instance.attribute("CLASSNAME").value()},
                      {"properties", ordered_json::object()}};
  for (const auto& child : Children(instance, {"QUALIFIER", "PROPERTY"}, " NAME TYPE")) {
    const std::string name = child.attribute("NAME").value();
    if (child.name() == std::string("QUALIFIER")) {
      Expect(name == "State" && result["properties"].empty() && !result.contains("state"),
             "a qualifier " + name);
      result["state"] = ValueOf(child);
    } else {
      Expect(!result["properties"].contains(name), "two properties " + name);
      result["properties"][name] = ValueOf(child);
    }
  }
  return result;
}

// Byte by byte what XML 1.0 has no place for.
std::string AsXmlHolds(const std::string& text) {
  std::string held;
  const auto escape = [&held](const std::string& bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (const char one : bytes) {
      const auto byte = static_cast<unsigned char>(one);
      held += std::string("\\x") + kDigits[byte >> 4U] + kDigits[byte & 0xFU];
    }
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string three = text.substr(i, 3);
    if (three == "\xEF\xBF\xBE" || three == "\xEF\xBF\xBF") {
      escape(three);
      i += 2;
    } else if (static_cast<unsigned char>(text[i]) < 0x20 && text[i] != '\t' && text[i] != '\n') {
      escape(text.substr(i, 1));
    } else {
      held += text[i];
    }
  }
  return held;
}

}  // namespace

ordered_json ReadCimXml(const std::string& xml) {
  CheckSpelling(xml);
  pugi::xml_document document;
  const pugi::xml_parse_result result = document.load_buffer(
      xml.data(), xml.size(), pugi::parse_escapes | pugi::parse_ws_pcdata, pugi::encoding_utf8);
  Expect(result, std::string(result.description()) + " at " + std::to_string(result.offset));
  const pugi::xml_node group = OnlyChild(
      OnlyChild(OnlyChild(document, "CIM", " CIMVERSION DTDVERSION"), "DECLARATION"), "DECLGROUP");
  ordered_json instances = ordered_json::array();
  for (const pugi::xml_node& object : Children(group, {"VALUE.OBJECT"}, "")) {
    instances.push_back(InstanceOf(OnlyChild(object, "INSTANCE", " CLASSNAME")));
  }
  return instances;
}

ordered_json AsXmlHolds(ordered_json instances) {
  for (ordered_json& instance : instances) {
    for (ordered_json& value : instance.at("properties")) {
      if (value.is_string()) value = AsXmlHolds(value.get<std::string>());
    }
  }
  return instances;
}

ordered_json ReadJsonInstances(const std::string& json) {
  ordered_json instances = ordered_json::parse(json).at("instances");
  for (ordered_json& instance : instances) {
    instance.erase("reading");
    instance.erase("unit");
  }
  return instances;
}

}  // namespace strake::tests
