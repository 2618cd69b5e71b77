#include "report/PageView.h"

#include "report/InstanceText.h"

#include <algorithm>
#include <limits>
#include <map>

namespace strake::report {
namespace {

class Arrangement {
 public:
  ProcessorView& At(std::optional<int> number) {
    ProcessorView& processor = fProcessors[number.value_or(kNone)];
    processor.number = number;
    return processor;
  }

  std::vector<ProcessorView> Take() {
    std::vector<ProcessorView> processors;
    processors.reserve(fProcessors.size());
    for (auto& [number, processor] : fProcessors) {
      processors.push_back(std::move(processor));
    }
    return processors;
  }

 private:
  static constexpr int kNone = std::numeric_limits<int>::max();
  std::map<int, ProcessorView> fProcessors;
};

}  // namespace

PageView ArrangePage(const Report& report) {
  Arrangement arrangement;
  for (const cim::StoredInstance& instance : report.Instances()) {
    ProcessorView& processor = arrangement.At(SourceNode(instance));
    processor.answered = processor.number ? std::optional<bool>(true) : std::nullopt;
    if (!IsSensor(instance)) {
      processor.instances.push_back(&instance);
    }
  }
  for (const Sensor& sensor : report.Sensors()) {
    arrangement.At(sensor.sp).sensors.push_back(&sensor);
  }
  for (const Processor& one : report.Processors()) {
    arrangement.At(one.number).answered = one.answered;
  }
  for (const Finding& finding : report.Findings()) {
    if (finding.sp) {
      arrangement.At(finding.sp).findings.push_back(&finding);
    }
  }
  PageView view{arrangement.Take(), ChartScales(report.Sensors())};
  for (ProcessorView& processor : view.processors) {
    // The catalogue's rows lie in its order.
    std::ranges::stable_sort(processor.instances, std::ranges::less(),
                             &cim::StoredInstance::schema);
    std::ranges::stable_sort(processor.sensors, std::ranges::less(), &Sensor::kind);
  }
  return view;
}

std::size_t CountSilent(const ProcessorView& processor) {
  return static_cast<std::size_t>(std::ranges::count(
      processor.sensors, nullptr, [](const Sensor* sensor) { return sensor->instance; }));
}

}  // namespace strake::report
