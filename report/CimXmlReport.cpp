#include "report/CimXmlReport.h"

#include "report/CimXmlInstance.h"

#include <pugixml.hpp>

namespace strake::report {
namespace {

constexpr std::string_view kHead =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
    "<CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\">\n<DECLARATION>\n<DECLGROUP>\n";
constexpr std::string_view kEnd = "</DECLGROUP>\n</DECLARATION>\n</CIM>\n";

}  // namespace

// No more than one of the instances as elements at a time: there can be 140,000.
void WriteCimXml(const Report& report, const Layout& /*layout*/, const Sink& sink) {
  sink(kHead);
  pugi::xml_document document;
  std::string line;
  for (const cim::StoredInstance& instance : report.Instances()) {
    pugi::xml_node object = document.append_child("VALUE.OBJECT");
    const pugi::xml_node element = AppendInstance(object, instance);
    const Sensor* const sensor = report.FindSensor(instance);
    if (sensor != nullptr && sensor->state) {
      PrependQualifier(element, "State", std::string(StateName(*sensor->state)));
    }
    line.clear();
    AppendXml(line, object);
    line += '\n';
    sink(line);
    document.remove_child(object);
  }
  sink(kEnd);
}

}  // namespace strake::report
