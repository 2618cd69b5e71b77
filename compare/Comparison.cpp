#include "compare/Comparison.h"

#include "cim/InstanceKeys.h"
#include "report/ClockOffset.h"
#include "report/Sensor.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <deque>
#include <optional>
#include <unordered_map>

namespace strake::compare {
namespace {

using cim::StoredInstance;

constexpr std::chrono::seconds kClockTolerance{60};

// How much two collections may differ and still be the same.
struct Tolerance {
  double percent = 0;
  std::chrono::seconds elapsed{};  // between the collections
};

// The instances of the second collection that no one of the first was paired with.
class Unpaired {
 public:
  explicit Unpaired(std::span<const StoredInstance> instances) {
    for (const StoredInstance& instance : instances) {
      fByKeys[&instance].push_back(&instance);
    }
  }

  // Null when there is none with these keys.
  const StoredInstance* Take(const StoredInstance& like) {
    const auto found = fByKeys.find(&like);
    if (found == fByKeys.end() || found->second.empty()) {
      return nullptr;
    }
    const StoredInstance* const taken = found->second.front();
    found->second.pop_front();
    return taken;
  }

  [[nodiscard]] bool IsLeft(const StoredInstance& instance) const {
    const auto& left = fByKeys.at(&instance);
    return std::ranges::find(left, &instance) != left.end();
  }

 private:
  std::unordered_map<const StoredInstance*, std::deque<const StoredInstance*>, cim::HashKeys,
                     cim::HaveEqualKeys>
      fByKeys;
};

bool IsReading(const cim::SchemaProperty& property) {
  return property.name == "CurrentReading" || property.name == "UnitModifier";
}

bool IsWithin(const StoredInstance& before, const StoredInstance& after, double percent) {
  const std::optional<double> one = report::ReadingValue(report::SensorOf(before));
  const std::optional<double> other = report::ReadingValue(report::SensorOf(after));
  constexpr double kWhole = 100;
  return one && other && std::abs(*other - *one) * kWhole <= std::abs(*one) * percent;
}

bool WentOn(const cim::Value& before, const cim::Value& after, std::chrono::seconds elapsed) {
  const auto one = report::MomentOf(cim::ToText(before));
  const auto other = report::MomentOf(cim::ToText(after));
  return one && other && std::chrono::abs((*other - *one) - elapsed) <= kClockTolerance;
}

bool AreEqual(const cim::Value* before, const cim::Value* after) {
  return before == nullptr || after == nullptr ? before == after : *before == *after;
}

std::vector<Change> ChangesOf(const StoredInstance& before, const StoredInstance& after,
                              const Tolerance& tolerance) {
  const bool hasSameReading =
      report::IsSensor(before) && IsWithin(before, after, tolerance.percent);
  std::vector<Change> changes;
  for (const cim::SchemaProperty& property : before.schema->properties) {
    const Change change{&property, cim::FindValue(before, property.name),
                        cim::FindValue(after, property.name)};
    if (AreEqual(change.before, change.after) || (hasSameReading && IsReading(property))) {
      continue;
    }
    if (property.name == "SPClock" && change.before != nullptr && change.after != nullptr &&
        WentOn(*change.before, *change.after, tolerance.elapsed)) {
      continue;
    }
    changes.push_back(change);
  }
  return changes;
}

}  // namespace

std::vector<Difference> Compare(const Collection& before, const Collection& after,
                                double tolerancePercent) {
  const Tolerance tolerance{tolerancePercent, after.at - before.at};
  std::vector<Difference> differences;
  Unpaired unpaired(after.instances);
  for (const StoredInstance& one : before.instances) {
    const StoredInstance* const other = unpaired.Take(one);
    if (other == nullptr) {
      differences.push_back({&one, nullptr});
    } else if (std::vector<Change> changes = ChangesOf(one, *other, tolerance); !changes.empty()) {
      differences.push_back({&one, other, std::move(changes)});
    }
  }
  for (const StoredInstance& other : after.instances) {
    if (unpaired.IsLeft(other)) {
      differences.push_back({nullptr, &other});
    }
  }
  return differences;
}

}  // namespace strake::compare
