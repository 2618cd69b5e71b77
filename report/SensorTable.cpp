#include "report/SensorTable.h"

#include "report/InstanceText.h"
#include "text/TextEscape.h"

#include <algorithm>

namespace strake::report {
namespace {

constexpr std::size_t kTitleIndent = 2;
constexpr std::size_t kKindIndent = 4;
constexpr std::size_t kRowIndent = 6;
constexpr std::size_t kGapBetweenSensors = 4;
constexpr std::size_t kWideTerminal = 110;

// The title of the class, which is there without an instance of it, too.
std::string Title() {
  const cim::SchemaClass& schema =
      *std::ranges::find(cim::SchemaClasses(), cim::QueryGroup::Sensors, &cim::SchemaClass::group);
  return InstanceTitle({&schema, 0, {}});
}

Columns TwiceBesideEachOther(const Columns& columns) {
  Columns twice = columns;
  twice.insert(twice.end(), columns.begin(), columns.end());
  twice[columns.size()].gap = kGapBetweenSensors;
  return twice;
}

// The rows of one kind.
void WriteRows(std::span<const Cells> sensors, const Columns& columns, TableText& out) {
  for (const Cells& cells : sensors) {
    out.Row(kRowIndent, cells, columns);
  }
}

// The second half stands beside the first one.
void WriteRowsOfTwo(std::span<const Cells> sensors, const Columns& columns, TableText& out) {
  const std::size_t rows = (sensors.size() + 1) / 2;
  for (std::size_t index = 0; index < rows; ++index) {
    Cells cells = sensors[index];
    if (rows + index < sensors.size()) {
      const Cells& second = sensors[rows + index];
      cells.insert(cells.end(), second.begin(), second.end());
    }
    out.Row(kRowIndent, cells, columns);
  }
}

}  // namespace

Columns SensorColumns() { return {{}, {.align = Align::Right}, {.gap = 1}, {}}; }

Cells SensorCells(const Sensor& sensor, const TableText& out) {
  const bool isSilent = sensor.instance == nullptr;
  Cell state;
  if (sensor.state) {
    state = {std::string(StateName(*sensor.state)), ShadeOf(*sensor.state)};
  }
  Cell reading{ReadingForPeople(sensor), isSilent ? Shade::Warning : Shade::None};
  out.MarkIf(sensor, reading);
  return {{text::EscapeForPeople(sensor.name)}, reading, {UnitForPeople(sensor)}, state};
}

void WriteSensorTable(std::span<const Sensor* const> sensors, std::size_t terminalColumns,
                      TableText& out) {
  Columns columns = SensorColumns();
  std::vector<Cells> rows;
  rows.reserve(sensors.size());
  for (const Sensor* const sensor : sensors) {
    Widen(columns, rows.emplace_back(SensorCells(*sensor, out)));
  }
  const Columns twice = TwiceBesideEachOther(columns);
  const bool areTwo =
      terminalColumns >= kWideTerminal && kRowIndent + WidthOf(twice) <= terminalColumns;

  out.Line(kTitleIndent, Title(), Shade::Heading);
  for (std::size_t begin = 0; begin < sensors.size();) {
    const SensorKind kind = sensors[begin]->kind;
    std::size_t end = begin;
    while (end < sensors.size() && sensors[end]->kind == kind) {
      ++end;
    }
    out.Line(kKindIndent, KindHeading(kind), Shade::Heading);
    const std::span<const Cells> ofKind = std::span(rows).subspan(begin, end - begin);
    areTwo ? WriteRowsOfTwo(ofKind, twice, out) : WriteRows(ofKind, columns, out);
    begin = end;
  }
}

}  // namespace strake::report
