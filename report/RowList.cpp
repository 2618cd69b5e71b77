#include "report/RowList.h"

#include "report/InstanceText.h"
#include "report/SensorTable.h"
#include "report/ValueForPeople.h"

#include <algorithm>
#include <array>
#include <iterator>
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

// Service processor, what it is of, label and value.
std::vector<Cells> RowsOf(std::span<const cim::StoredInstance* const> instances,
                          const TableText& out) {
  std::vector<Cells> rows;
  for (const cim::StoredInstance* const instance : instances) {
    const std::string sp = ProcessorLabel(SourceNode(*instance), kNoProcessor);
    Cell title{ShortTitle(*instance)};
    out.MarkIf(*instance, title);
    for (const Row& row : InstanceRows(*instance)) {
      rows.push_back({{sp}, title, {row.label}, ValueCell(row, out)});
    }
  }
  return rows;
}

// A sensor's own columns behind the first two.
std::vector<Cells> RowsOf(std::span<const Sensor* const> sensors, const TableText& out) {
  std::vector<Cells> rows;
  for (const Sensor* const sensor : sensors) {
    Cells& cells = rows.emplace_back(
        Cells{{ProcessorLabel(sensor->sp, kNoProcessor)}, {std::string(KindName(sensor->kind))}});
    std::ranges::move(SensorCells(*sensor, out), std::back_inserter(cells));
  }
  return rows;
}

// What all rows of a service processor have lines up; behind it properties and
// sensors have columns of their own.
void WritePart(const ProcessorPart& part, TableText& out) {
  constexpr std::size_t kCommon = 3;
  const std::array<std::vector<Cells>, 3> blocks{
      RowsOf(part.ComputerSystems(), out),
      RowsOf(std::span<const Sensor* const>(part.sensors), out),
      RowsOf(part.OtherInstances(), out)};
  Columns common(kCommon);
  for (const std::vector<Cells>& rows : blocks) {
    for (const Cells& cells : rows) {
      Widen(common, std::span(cells).first(kCommon));
    }
  }
  Columns ofProperties = common;
  ofProperties.emplace_back();
  Columns ofSensors = common;
  const Columns own = SensorColumns();
  ofSensors.insert(ofSensors.end(), own.begin() + 1, own.end());  // the name is common
  out.Rows(0, blocks[0], ofProperties);
  out.Rows(0, blocks[1], ofSensors);
  out.Rows(0, blocks[2], ofProperties);
}

void WriteFindings(std::span<const Finding> findings, TableText& out) {
  std::vector<Cells> rows;
  for (const Finding& finding : findings) {
    Cell text{finding.text};
    out.MarkIf(finding, text);
    rows.push_back({{ProcessorLabel(finding.sp, kNoProcessor)},
                    {"finding"},
                    {std::string(SeverityName(finding.severity)), ShadeOf(finding.severity)},
                    text});
  }
  out.Rows(0, rows, Columns(4));
}

}  // namespace

void WriteRowList(const Report& report, std::span<const ProcessorPart> parts, TableText& out) {
  for (const ProcessorPart& part : parts) {
    WritePart(part, out);
  }
  WriteFindings(report.Findings(), out);
}

}  // namespace strake::report
