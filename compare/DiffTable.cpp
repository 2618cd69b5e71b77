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

const char* SignOf(const Difference& one) {
  if (one.before == nullptr) {
    return "+ ";
  }
  return one.after == nullptr ? "- " : "~ ";
}

void AppendChanges(std::string& out, const std::vector<Change>& changes) {
  std::size_t width = 0;
  for (const Change& change : changes) {
    width = std::max(width, change.property->label.size());
  }
  for (const Change& change : changes) {
    out += "    ";
    out += change.property->label;
    out.append(width + 2 - change.property->label.size(), ' ');
    out += TextOf(change) + "\n";
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

void WriteDiffTable(const DiffReport& diff, const Sink& sink) {
  sink(std::string("From ").append(Describe(diff.before)).append("\nto   "));
  sink(Describe(diff.after).append("\n\n"));
  for (const Difference& one : diff.differences) {
    std::string out = SignOf(one);
    out.append(TitleOf(one.before == nullptr ? *one.after : *one.before)).append("\n");
    AppendChanges(out, one.changes);
    sink(out);
  }
  sink(diff.differences.empty() ? "No differences.\n" : "\n");
  if (!diff.differences.empty()) {
    sink(SummaryOf(diff.differences));
  }
}

}  // namespace strake::compare
