#include "report/CsvReport.h"

#include "text/EscapeCsv.h"

namespace strake::report {
namespace {

const cim::SchemaClass& ClassOf(const Report& report) {
  const std::vector<const cim::SchemaClass*>& classes = report.Facts().classes;
  if (classes.size() != 1 && !report.Instances().empty()) {
    return *report.Instances().front().schema;
  }
  return classes.empty() ? cim::SchemaClasses().front() : *classes.front();
}

class Line {
 public:
  void Add(std::string_view cell) {
    fText += fSeparator;
    fText += text::EscapeCsv(cell);
    fSeparator = ",";
  }
  std::string End() { return std::move(fText += "\r\n"); }

 private:
  std::string fText;
  std::string_view fSeparator;
};

std::string Header(const cim::SchemaClass& schema, bool hasStates) {
  Line line;
  for (const cim::SchemaProperty& property : schema.properties) {
    line.Add(property.name);
  }
  if (schema.group == cim::QueryGroup::Sensors) {
    line.Add("Reading");
    line.Add("Unit");
    if (hasStates) {
      line.Add("State");
    }
  }
  return line.End();
}

std::string Row(const cim::StoredInstance& instance, const Report& report) {
  Line line;
  for (const cim::SchemaProperty& property : instance.schema->properties) {
    const cim::Value* const value = cim::FindValue(instance, property.name);
    line.Add(value == nullptr ? "" : cim::ToText(*value));
  }
  if (const Sensor* const sensor = report.FindSensor(instance)) {
    line.Add(ReadingFitsDouble(*sensor) ? sensor->reading : "");
    line.Add(sensor->unit);
    if (report.HasStates()) {
      line.Add(sensor->state ? StateName(*sensor->state) : "");
    }
  }
  return line.End();
}

}  // namespace

// Classes are known by their names: the host's libraries and the command can have
// a catalogue each.
void WriteCsv(const Report& report, const Layout& /*layout*/, const Sink& sink) {
  const cim::SchemaClass& schema = ClassOf(report);
  sink(Header(schema, report.HasStates()));
  for (const cim::StoredInstance& instance : report.Instances()) {
    if (instance.schema->name == schema.name) {
      sink(Row(instance, report));
    }
  }
}

}  // namespace strake::report
