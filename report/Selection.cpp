#include "report/Selection.h"

#include "report/InstanceText.h"
#include "text/Glob.h"

#include <algorithm>

namespace strake::report {
namespace {

constexpr std::string_view kSensorName = "SensorDescription";

// Each library that stores instances has a catalogue of its own: rows of two are
// one when they have one name.
bool Fits(const cim::StoredInstance& instance, const PropertyFilter& filter) {
  if (instance.schema->name != filter.schema->name) {
    return true;
  }
  const cim::Value* const value = cim::FindValue(instance, filter.property->name);
  return value != nullptr && text::MatchesGlob(filter.glob, cim::ToText(*value));
}

bool IsSelected(const cim::StoredInstance& instance, const Selection& selection) {
  if (selection.node && SourceNode(instance) != selection.node) {
    return false;
  }
  if (selection.sensor && IsSensor(instance) &&
      !text::MatchesGlob(*selection.sensor, SensorOf(instance).name)) {
    return false;
  }
  return std::ranges::all_of(selection.filters, [&instance](const PropertyFilter& filter) {
    return Fits(instance, filter);
  });
}

// It has a name and a number and no other property.
bool Fits(const SilentSensor& silent, const PropertyFilter& filter) {
  if (filter.schema->group != cim::QueryGroup::Sensors) {
    return true;
  }
  if (filter.property->name == "SourceNode") {
    return text::MatchesGlob(filter.glob, std::to_string(silent.sp));
  }
  return filter.property->name == kSensorName && text::MatchesGlob(filter.glob, silent.name);
}

bool IsSelected(const SilentSensor& silent, const Selection& selection) {
  if (selection.node && silent.sp != selection.node) {
    return false;
  }
  if (selection.sensor && !text::MatchesGlob(*selection.sensor, SensorOf(silent).name)) {
    return false;
  }
  return std::ranges::all_of(
      selection.filters, [&silent](const PropertyFilter& filter) { return Fits(silent, filter); });
}

bool SelectsSensors(const Selection& selection) {
  return selection.sensor || std::ranges::any_of(selection.filters, [](const auto& filter) {
           return filter.schema->group == cim::QueryGroup::Sensors;
         });
}

// Where sensors are selected, a finding about silent ones of which none is left
// says nothing of what is shown.
bool IsSelected(const Finding& finding, const Selection& selection, const Collected& collected) {
  if (selection.node && finding.sp && finding.sp != selection.node) {
    return false;
  }
  return finding.code != FindingCode::SensorUnanswered || !finding.sp ||
         !SelectsSensors(selection) ||
         std::ranges::any_of(collected.silentSensors, [&finding](const SilentSensor& silent) {
           return silent.sp == finding.sp;
         });
}

// Only where others were found: else a finding tells why there is none.
void SelectProcessor(Collected& collected, int node) {
  if (collected.processors.empty()) {
    return;
  }
  std::erase_if(collected.processors,
                [node](const Processor& processor) { return processor.number != node; });
  if (collected.processors.empty() && collected.instances.empty()) {
    collected.findings.push_back({Severity::Warning, FindingCode::NoSp, node,
                                  "SP " + std::to_string(node) + " was not found"});
  }
}

}  // namespace

void Select(Collected& collected, const Selection& selection) {
  std::erase_if(collected.instances, [&selection](const cim::StoredInstance& instance) {
    return !IsSelected(instance, selection);
  });
  std::erase_if(collected.silentSensors, [&selection](const SilentSensor& silent) {
    return !IsSelected(silent, selection);
  });
  std::erase_if(collected.findings,
                [&](const Finding& finding) { return !IsSelected(finding, selection, collected); });
  if (selection.node) {
    SelectProcessor(collected, *selection.node);
  }
}

}  // namespace strake::report
