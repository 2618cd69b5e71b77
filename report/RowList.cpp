#include "report/RowList.h"

#include "report/InstanceText.h"
#include "report/SensorTable.h"
#include "report/ValueForPeople.h"

#include <algorithm>
#include <string_view>

namespace strake::report {
namespace {

constexpr std::string_view kNoProcessor = "-";

std::string ShortTitle(const cim::StoredInstance& instance) {
  std::string title(instance.schema->shortName);
  if (const cim::Value* const number = cim::FindValue(instance, instance.schema->number)) {
    title += ' ' + ValueForPeople(*number);
  }
  return title;
}

void WriteInstances(std::span<const cim::StoredInstance* const> instances, TableText& out) {
  std::vector<Cells> rows;
  for (const cim::StoredInstance* const instance : instances) {
    const std::string sp = ProcessorLabel(SourceNode(*instance), kNoProcessor);
    const std::string title = ShortTitle(*instance);
    for (Row& row : InstanceRows(*instance)) {
      rows.push_back({{sp}, {title}, {std::move(row.label)}, {std::move(row.value)}});
    }
  }
  out.Rows(0, rows, Columns(4));
}

void WriteSensors(std::span<const Sensor* const> sensors, TableText& out) {
  std::vector<Cells> rows;
  for (const Sensor* const sensor : sensors) {
    Cells& cells = rows.emplace_back(
        Cells{{ProcessorLabel(sensor->sp, kNoProcessor)}, {std::string(KindName(sensor->kind))}});
    std::ranges::move(SensorCells(*sensor), std::back_inserter(cells));
  }
  Columns columns(2);
  std::ranges::move(SensorColumns(), std::back_inserter(columns));
  out.Rows(0, rows, columns);
}

void WriteFindings(std::span<const Finding> findings, TableText& out) {
  std::vector<Cells> rows;
  for (const Finding& finding : findings) {
    rows.push_back({{ProcessorLabel(finding.sp, kNoProcessor)},
                    {"finding"},
                    {std::string(SeverityName(finding.severity)), ShadeOf(finding.severity)},
                    {finding.text}});
  }
  out.Rows(0, rows, Columns(4));
}

}  // namespace

void WriteRowList(const Report& report, std::span<const ProcessorPart> parts, TableText& out) {
  for (const ProcessorPart& part : parts) {
    WriteInstances(part.ComputerSystems(), out);
    WriteSensors(part.sensors, out);
    WriteInstances(part.OtherInstances(), out);
  }
  WriteFindings(report.Findings(), out);
}

}  // namespace strake::report
