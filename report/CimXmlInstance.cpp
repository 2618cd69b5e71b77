#include "report/CimXmlInstance.h"

#include "text/XmlText.h"

#include <pugixml.hpp>

namespace strake::report {
namespace {

class AppendingWriter : public pugi::xml_writer {
 public:
  explicit AppendingWriter(std::string& out) : fOut(&out) {}
  void write(const void* data, std::size_t size) override {
    fOut->append(static_cast<const char*>(data), size);
  }

 private:
  std::string* fOut;
};

void AddAttribute(pugi::xml_node& element, const char* name, std::string_view value) {
  element.append_attribute(name).set_value(std::string(value).c_str());
}

// White space alone is text, too.
void AddValue(pugi::xml_node& element, std::string_view text) {
  element.append_child("VALUE")
      .append_child(pugi::node_pcdata)
      .set_value(text::XmlText(text).c_str());
}

}  // namespace

pugi::xml_node AppendInstance(pugi::xml_node parent, const cim::StoredInstance& instance) {
  pugi::xml_node element = parent.append_child("INSTANCE");
  AddAttribute(element, "CLASSNAME", instance.schema->name);
  for (const cim::StoredProperty& stored : instance.properties) {
    pugi::xml_node property = element.append_child("PROPERTY");
    AddAttribute(property, "NAME", stored.schema->name);
    AddAttribute(property, "TYPE", cim::CimTypeName(cim::TypeOf(stored.value)));
    AddValue(property, cim::ToText(stored.value));
  }
  return element;
}

void PrependQualifier(pugi::xml_node instance, const std::string& name, const std::string& text) {
  pugi::xml_node qualifier = instance.prepend_child("QUALIFIER");
  AddAttribute(qualifier, "NAME", name);
  AddAttribute(qualifier, "TYPE", cim::CimTypeName(cim::CimType::String));
  AddValue(qualifier, text);
}

void AppendXml(std::string& out, const pugi::xml_node& element) {
  AppendingWriter writer(out);
  element.print(writer, "", pugi::format_raw | pugi::format_no_empty_element_tags,
                pugi::encoding_utf8);
}

}  // namespace strake::report
