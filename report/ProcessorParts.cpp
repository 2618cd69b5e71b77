#include "report/ProcessorParts.h"

#include "report/InstanceText.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace strake::report {
namespace {

struct Ranked {
  const Sensor* sensor;
  std::optional<double> reading;
};

bool IsBefore(const Ranked& one, const Ranked& other, SensorOrder order) {
  const Sensor& left = *one.sensor;
  const Sensor& right = *other.sensor;
  const auto leftRank = std::make_pair(left.kind, left.reading.empty());
  const auto rightRank = std::make_pair(right.kind, right.reading.empty());
  if (leftRank != rightRank) {
    return leftRank < rightRank;
  }
  switch (order) {
    case SensorOrder::ByName:
      return left.name < right.name;
    case SensorOrder::ByReading:
      return std::tie(left.unit, one.reading) < std::tie(right.unit, other.reading);
    case SensorOrder::ByState:
      return left.state > right.state;
    case SensorOrder::AsCollected:
      break;
  }
  return false;
}

void Sort(std::vector<const Sensor*>& sensors, SensorOrder order) {
  std::vector<Ranked> ranked;
  ranked.reserve(sensors.size());
  for (const Sensor* const sensor : sensors) {
    ranked.push_back({sensor, ReadingValue(*sensor)});
  }
  std::ranges::stable_sort(ranked, [order](const Ranked& one, const Ranked& other) {
    return IsBefore(one, other, order);
  });
  std::ranges::transform(ranked, sensors.begin(), &Ranked::sensor);
}

std::ptrdiff_t ClassRank(const cim::StoredInstance* instance) {
  const auto classes = cim::SchemaClasses();
  return std::ranges::find(classes, instance->schema->name, &cim::SchemaClass::name) -
         classes.begin();
}

// Their class is the catalogue's first one.
auto EndOfComputerSystems(const std::vector<const cim::StoredInstance*>& instances) {
  return std::ranges::partition_point(instances, [](const cim::StoredInstance* instance) {
    return instance->schema->group == cim::QueryGroup::ComputerSystem;
  });
}

}  // namespace

std::span<const cim::StoredInstance* const> ProcessorPart::ComputerSystems() const {
  return {instances.begin(), EndOfComputerSystems(instances)};
}

std::span<const cim::StoredInstance* const> ProcessorPart::OtherInstances() const {
  return {EndOfComputerSystems(instances), instances.end()};
}

std::span<const Sensor* const> ProcessorPart::SensorsOf(SensorKind kind) const {
  const auto kindOf = [](const Sensor* sensor) { return sensor->kind; };
  return {std::ranges::lower_bound(sensors, kind, {}, kindOf),
          std::ranges::upper_bound(sensors, kind, {}, kindOf)};
}

std::vector<ProcessorPart> PartsOf(const Report& report, SensorOrder order) {
  std::map<std::optional<int>, ProcessorPart> byNumber;
  for (const Sensor& sensor : report.Sensors()) {
    byNumber[sensor.sp].sensors.push_back(&sensor);
  }
  for (const cim::StoredInstance& instance : report.Instances()) {
    if (!IsSensor(instance)) {
      byNumber[SourceNode(instance)].instances.push_back(&instance);
    }
  }
  for (const Processor& processor : report.Processors()) {
    byNumber[processor.number].answer = processor.answer;
  }
  for (const Finding& finding : report.Findings()) {
    const auto found = finding.sp ? byNumber.find(finding.sp) : byNumber.end();
    if (found != byNumber.end()) {
      found->second.findings.push_back(&finding);
    }
  }
  std::vector<ProcessorPart> parts;
  parts.reserve(byNumber.size());
  for (auto& [number, part] : byNumber) {
    part.number = number;
    std::ranges::stable_sort(part.instances, {}, ClassRank);
    Sort(part.sensors, order);
    parts.push_back(std::move(part));
  }
  if (!parts.empty() && !parts.front().number) {
    std::rotate(parts.begin(), parts.begin() + 1, parts.end());
  }
  return parts;
}

std::string_view AnswerText(Answer answer) {
  switch (answer) {
    case Answer::NotAsked:
      return "not asked";
    case Answer::No:
      return "did not answer";
    case Answer::Yes:
      break;
  }
  return "answered";
}

std::size_t CountNumbered(std::span<const ProcessorPart> parts) {
  return static_cast<std::size_t>(std::ranges::count_if(
      parts, [](const ProcessorPart& part) { return part.number.has_value(); }));
}

std::size_t CountNumbered(std::span<const ProcessorPart> parts, Answer answer) {
  return static_cast<std::size_t>(std::ranges::count_if(parts, [answer](const ProcessorPart& part) {
    return part.number.has_value() && part.answer == answer;
  }));
}

}  // namespace strake::report
