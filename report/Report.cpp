#include "report/Report.h"

#include "text/TextEscape.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace strake::report {
namespace {

void MaskSecrets(cim::StoredInstance& instance) {
  for (cim::StoredProperty& property : instance.properties) {
    if (property.schema->role == cim::Role::Secret && !cim::ToText(property.value).empty()) {
      property.value = std::string(kSecretMask);
    }
  }
}

// "2 instances of CLASS have equal keys: NAME=VALUE, ...".
Finding FindingOf(const cim::EqualKeys& equal) {
  return {Severity::Warning, FindingCode::EqualKeys, std::nullopt,
          std::to_string(equal.count) + " instances of " + std::string(equal.schema->name) +
              " have equal keys: " + text::EscapeForPeople(equal.keys)};
}

std::vector<Sensor> SensorsOf(const Collected& collected) {
  std::vector<Sensor> sensors;
  for (const cim::StoredInstance& instance : collected.instances) {
    if (IsSensor(instance)) {
      sensors.push_back(SensorOf(instance));
    }
  }
  for (const SilentSensor& silent : collected.silentSensors) {
    sensors.push_back(SensorOf(silent));
  }
  return sensors;
}

void ApplyLimits(std::vector<Sensor>& sensors, const Limits& limits,
                 std::vector<Finding>& findings) {
  for (Sensor& sensor : sensors) {
    if (sensor.reading.empty()) {
      continue;
    }
    Judgement judgement = Judge(sensor, limits);
    sensor.state = judgement.state;
    if (judgement.state != SensorState::Ok) {
      const Severity severity =
          judgement.state == SensorState::Critical ? Severity::Critical : Severity::Warning;
      findings.push_back({severity, FindingCode::Limit, sensor.sp, std::move(judgement.text)});
    }
  }
}

}  // namespace

Report::Report(Collected collected, Secrets secrets, const std::optional<Limits>& limits)
    : fCollected(std::move(collected)), fHasStates(limits.has_value()) {
  for (const cim::EqualKeys& equal : cim::FindEqualKeys(fCollected.instances)) {
    fCollected.findings.push_back(FindingOf(equal));
  }
  if (secrets == Secrets::Masked) {
    for (cim::StoredInstance& instance : fCollected.instances) {
      MaskSecrets(instance);
    }
  }
  fSensors = SensorsOf(fCollected);
  if (limits) {
    ApplyLimits(fSensors, *limits, fCollected.findings);
  }
  std::ranges::stable_sort(fCollected.findings, std::greater<>(), &Finding::severity);
}

// Those of the instances stand in their order.
const Sensor* Report::FindSensor(const cim::StoredInstance& instance) const {
  const auto answered = std::ranges::partition_point(
      fSensors, [](const Sensor& sensor) { return sensor.instance != nullptr; });
  const auto found = std::ranges::lower_bound(fSensors.begin(), answered, &instance,
                                              std::ranges::less(), &Sensor::instance);
  return found == answered || found->instance != &instance ? nullptr : &*found;
}

}  // namespace strake::report
