#include "compare/DiffReport.h"
#include "report/InstanceText.h"
#include "report/Sensor.h"
#include "report/Timestamp.h"
#include "report/ValueForPeople.h"
#include "text/TextEscape.h"

#include <algorithm>

namespace strake::compare {
namespace {

// "rack7 of 2024-03-18T09:41:27Z (yesterday.json)".
std::string Describe(const Compared& one) {
  return text::EscapeForPeople(one.report->server) + " of " +
         report::Timestamp(one.report->collectedAt) + " (" + text::EscapeForPeople(one.name) + ")";
}

// Sensors share a title, so they are told by their name.
std::string TitleOf(const cim::StoredInstance& instance) {
  std::string title = report::IsSensor(instance)
                          ? text::EscapeForPeople(report::SensorOf(instance).name) + " (" +
                                std::string(instance.schema->name) + ")"
                          : report::InstanceTitle(instance);
  if (const auto node = report::SourceNode(instance)) {
    title.append(" on SP ").append(std::to_string(*node));
  }
  return title;
}

std::string ValueText(const cim::Value* value) {
  if (value == nullptr) {
    return "(not set)";
  }
  const std::string text = report::ValueForPeople(*value);
  return text.empty() ? "(empty)" : text;
}

std::string TextOf(const Change& change) {
  if (change.property->role == cim::Role::Secret) {
    return "differs, masked";
  }
  return ValueText(change.before) + " -> " + ValueText(change.after);
}

std::string ReadingText(const cim::StoredInstance& instance) {
  const report::Sensor sensor = report::SensorOf(instance);
  std::string text = report::ReadingForPeople(sensor);
  if (!sensor.unit.empty()) {
    text.append(" ").append(report::UnitForPeople(sensor));
  }
  return text;
}

bool IsPartOfReading(const Change& change) {
  return change.property->name == "CurrentReading" || change.property->name == "UnitModifier" ||
         change.property->name == "BaseUnits";
}

// What changed of an instance that is in both. What makes up a sensor's reading
// is one row.
std::vector<report::Row> RowsOf(const Difference& one) {
  std::vector<report::Row> rows;
  bool hasReading = false;
  for (const Change& change : one.changes) {
    if (!report::IsSensor(*one.before) || !IsPartOfReading(change)) {
      rows.push_back({std::string(change.property->label), TextOf(change)});
    } else if (!hasReading) {
      hasReading = true;
      rows.push_back({"Reading", ReadingText(*one.before) + " -> " + ReadingText(*one.after)});
    }
  }
  return rows;
}

const char* SignOf(const Difference& one) {
  if (one.before == nullptr) {
    return "+ ";
  }
  return one.after == nullptr ? "- " : "~ ";
}

void AppendRows(std::string& out, const std::vector<report::Row>& rows) {
  std::size_t width = 0;
  for (const report::Row& row : rows) {
    width = std::max(width, row.label.size());
  }
  for (const report::Row& row : rows) {
    out += "    ";
    out += row.label;
    out.append(width + 2 - row.label.size(), ' ');
    out.append(row.value).append("\n");
  }
}

std::string SummaryOf(const std::vector<Difference>& differences) {
  std::size_t added = 0;
  std::size_t removed = 0;
  for (const Difference& one : differences) {
    added += one.before == nullptr ? 1 : 0;
    removed += one.after == nullptr ? 1 : 0;
  }
  std::string summary = std::to_string(added);
  summary.append(" added, ").append(std::to_string(removed)).append(" removed, ");
  return summary + std::to_string(differences.size() - added - removed) + " changed\n";
}

}  // namespace

void WriteDiffTable(const DiffReport& diff, const report::Sink& sink) {
  sink(std::string("From ").append(Describe(diff.before)).append("\nto   "));
  sink(Describe(diff.after).append("\n\n"));
  for (const Difference& one : diff.differences) {
    std::string out = SignOf(one);
    out.append(TitleOf(one.before == nullptr ? *one.after : *one.before)).append("\n");
    AppendRows(out, RowsOf(one));
    sink(out);
  }
  sink(diff.differences.empty() ? "No differences.\n" : "\n");
  if (!diff.differences.empty()) {
    sink(SummaryOf(diff.differences));
  }
}

}  // namespace strake::compare
