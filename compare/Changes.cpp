#include "compare/Changes.h"

#include "compare/Comparison.h"
#include "report/InstanceText.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <deque>
#include <map>
#include <set>
#include <tuple>

namespace strake::compare {
namespace {

using cim::StoredInstance;
using report::Sensor;

// What a sensor is known by, with a reading and without one.
using SensorName = std::tuple<std::optional<int>, report::SensorKind, std::string>;

SensorName NameOf(const Sensor& sensor) { return {sensor.sp, sensor.kind, sensor.name}; }

class SensorsByName {
 public:
  explicit SensorsByName(const report::Report& report) {
    for (const Sensor& sensor : report.Sensors()) {
      fSensors[NameOf(sensor)].push_back(&sensor);
    }
  }

  // Whether the sensor is there and gives no reading.
  [[nodiscard]] bool HasSilent(const StoredInstance& instance) const {
    if (!report::IsSensor(instance)) {
      return false;
    }
    const auto found = fSensors.find(NameOf(report::SensorOf(instance)));
    return found != fSensors.end() && std::ranges::any_of(found->second, [](const Sensor* sensor) {
             return sensor->instance == nullptr;
           });
  }
  // Of several with one name the first that was not taken; null when none is left.
  const Sensor* Take(const Sensor& like) {
    const auto found = fSensors.find(NameOf(like));
    if (found == fSensors.end() || found->second.empty()) {
      return nullptr;
    }
    const Sensor* const taken = found->second.front();
    found->second.pop_front();
    return taken;
  }

 private:
  std::map<SensorName, std::deque<const Sensor*>> fSensors;
};

// Where an instance that was collected stands in the report.
const StoredInstance& InReport(const Round& round, const StoredInstance& instance) {
  const auto index = static_cast<std::size_t>(&instance - round.instances.data());
  return round.report.Instances()[index];
}

std::string Placed(std::string name, const std::optional<int>& sp) {
  if (sp) {
    name.append(" on SP ").append(std::to_string(*sp));
  }
  return name;
}

std::string NameForPeople(const Sensor& sensor) {
  return Placed(text::EscapeForPeople(sensor.name), sensor.sp);
}

std::string NameForPeople(const StoredInstance& instance) {
  return report::IsSensor(instance)
             ? NameForPeople(report::SensorOf(instance))
             : Placed(report::NumberedTitle(instance), report::SourceNode(instance));
}

void MarkValues(const Difference& one, const Round& after, Changes& changes) {
  const StoredInstance& shown = InReport(after, *one.after);
  for (const Change& change : one.changes) {
    changes.changed.push_back(std::string(change.property->label) + " of " + NameForPeople(shown));
    if (const auto* const value = cim::FindProperty(shown, change.property->name)) {
      changes.marks.Add(*value);
    }
  }
}

// Gives the sensors that changed.
std::set<const StoredInstance*> MarkInstances(const std::vector<Difference>& differences,
                                              const Round& before, const Round& after,
                                              Changes& changes) {
  const SensorsByName sensorsBefore(before.report);
  const SensorsByName sensorsAfter(after.report);
  std::set<const StoredInstance*> sensors;
  for (const Difference& one : differences) {
    if (one.after == nullptr) {
      if (!sensorsAfter.HasSilent(*one.before)) {
        changes.gone.push_back(NameForPeople(*one.before));
      }
    } else if (one.before == nullptr) {
      if (!sensorsBefore.HasSilent(*one.after)) {
        changes.added.push_back(NameForPeople(*one.after));
      }
      changes.marks.Add(InReport(after, *one.after));
    } else if (report::IsSensor(*one.after)) {
      sensors.insert(&InReport(after, *one.after));
    } else {
      MarkValues(one, after, changes);
    }
  }
  return sensors;
}

void MarkSensors(const std::set<const StoredInstance*>& changed, const Round& before,
                 const Round& after, Changes& changes) {
  SensorsByName sensorsBefore(before.report);
  for (const Sensor& sensor : after.report.Sensors()) {
    const Sensor* const old = sensorsBefore.Take(sensor);
    const bool isNew = old == nullptr;
    if (isNew || changed.contains(sensor.instance) || old->state != sensor.state ||
        (old->instance == nullptr) != (sensor.instance == nullptr)) {
      changes.marks.Add(sensor);
      if (!isNew || sensor.instance == nullptr) {
        changes.changed.push_back(NameForPeople(sensor));
      }
    }
  }
}

void MarkFindings(const Round& before, const Round& after, Changes& changes) {
  const std::span<const report::Finding> old = before.report.Findings();
  for (const report::Finding& finding : after.report.Findings()) {
    if (std::ranges::find(old, finding) == old.end()) {
      changes.marks.Add(finding);
      ++changes.findings;
    }
  }
}

}  // namespace

Changes ChangesBetween(const Round& before, const Round& after, double tolerancePercent) {
  Changes changes;
  const std::vector<Difference> differences =
      Compare({before.report.Facts().collectedAt, before.instances},
              {after.report.Facts().collectedAt, after.instances}, tolerancePercent);
  MarkSensors(MarkInstances(differences, before, after, changes), before, after, changes);
  MarkFindings(before, after, changes);
  return changes;
}

}  // namespace strake::compare
