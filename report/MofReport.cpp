#include "report/MofReport.h"

#include "report/ServerText.h"
#include "report/Timestamp.h"
#include "text/EscapeMof.h"
#include "text/TextEscape.h"

namespace strake::report {
namespace {

// One line of a comment, whatever is in the text.
std::string Comment(std::string_view text) { return "// " + text::EscapeForPeople(text) + '\n'; }

std::string Head(const CollectionFacts& facts) {
  return Comment("Collected by strake " + facts.version + " at " + Timestamp(facts.collectedAt)) +
         Comment("Server: " + ServerForPeople(facts.server));
}

std::string Literal(const cim::Value& value) {
  struct Literals {
    std::string operator()(const std::string& text) const {
      return '"' + text::EscapeMof(text) + '"';
    }
    std::string operator()(const cim::DateTime& dateTime) const {
      return '"' + text::EscapeMof(dateTime.Text()) + '"';
    }
    std::string operator()(int number) const { return std::to_string(number); }
  };
  return std::visit(Literals{}, value);
}

std::string InstanceText(const cim::StoredInstance& instance, const Sensor* sensor) {
  std::string text = "\n";
  if (sensor != nullptr && sensor->state) {
    text += Comment("State: " + std::string(StateName(*sensor->state)));
  }
  text += "instance of ";
  text += instance.schema->name;
  text += " {\n";
  for (const cim::StoredProperty& property : instance.properties) {
    text += "    ";
    text += property.schema->name;
    text += " = ";
    text += Literal(property.value);
    text += ";\n";
  }
  return text += "};\n";
}

}  // namespace

void WriteMof(const Report& report, const Layout& /*layout*/, const Sink& sink) {
  sink(Head(report.Facts()));
  for (const cim::StoredInstance& instance : report.Instances()) {
    sink(InstanceText(instance, report.FindSensor(instance)));
  }
}

}  // namespace strake::report
