// Stored instances put together by hand, for the reports.
#pragma once

#include "report/Writer.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace strake::tests {

using Properties = std::vector<std::pair<std::string, cim::Value>>;

// Throws std::out_of_range: the catalogue does not have these names.
inline cim::StoredInstance Instance(const std::string& className, const Properties& properties) {
  cim::StoredInstance instance{cim::FindSchemaClass(className), 0, {}};
  if (instance.schema == nullptr) {
    throw std::out_of_range(className);
  }
  for (const auto& [name, value] : properties) {
    const auto* const property = cim::FindSchemaProperty(*instance.schema, name);
    if (property == nullptr) {
      throw std::out_of_range(className + "." + name);
    }
    instance.properties.push_back({property, value});
  }
  return instance;
}

// A value of an eight-bit number: the node's type.
inline cim::Value Node(std::uint8_t number) { return {number}; }
inline cim::Value Units(std::uint16_t number) { return {number}; }

inline cim::StoredInstance Sensor(std::uint8_t node, const std::string& name, int reading,
                                  std::uint16_t units, int modifier) {
  return Instance("VELKSG_SP_NumericSensor", {{"CreationClassName", "VELKSG_SP_NumericSensor"},
                                              {"SourceNode", Node(node)},
                                              {"DeviceID", name + "-Node" + std::to_string(node)},
                                              {"SensorDescription", name},
                                              {"CurrentReading", reading},
                                              {"BaseUnits", Units(units)},
                                              {"UnitModifier", modifier}});
}

// Every property of every class, texts with the given one.
inline std::vector<cim::StoredInstance> OneOfEachClass(const std::string& text) {
  std::vector<cim::StoredInstance> instances;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    cim::StoredInstance& instance = instances.emplace_back();
    instance.schema = &schema;
    for (const cim::SchemaProperty& property : schema.properties) {
      if (property.type == cim::CimType::String) {
        instance.properties.push_back({&property, text});
      }
    }
  }
  return instances;
}

// 15 June 2010, 13:45:30, two hours behind.
inline cim::Value SomeTime() { return cim::DateTime("20100615134530.000000-120"); }

// Above which every sensor is to be looked at.
inline report::Limits UpperLimits(double warning, double critical) {
  report::LimitRule rule;
  rule.upperWarning = report::Bound{warning, std::to_string(warning)};
  rule.upperCritical = report::Bound{critical, std::to_string(critical)};
  return {rule};
}

inline report::CollectionFacts SomeFacts() {
  return {.server = {"rack7", "", "orlo"},
          .version = "1.2.3",
          .collectedAt = std::chrono::sys_days(std::chrono::year(2024) / 3 / 18) +
                         std::chrono::hours(9) + std::chrono::minutes(41) + std::chrono::seconds(7),
          .queries = 1};
}

inline report::Report ReportOf(const std::vector<cim::StoredInstance>& instances,
                               const report::CollectionFacts& facts = SomeFacts(),
                               report::Secrets secrets = report::Secrets::Masked) {
  return report::Report({.facts = facts, .instances = instances}, secrets);
}

inline std::string Written(report::Writer writer, const report::Report& report,
                           const report::Layout& layout = {}) {
  std::string out;
  writer(report, layout, [&out](std::string_view text) { out += text; });
  return out;
}

}  // namespace strake::tests
