// The sensors of one service processor as rows.
#pragma once

#include "report/TableText.h"

#include <span>

namespace strake::report {

// Name, reading, unit and state.
Columns SensorColumns();
Cells SensorCells(const Sensor& sensor, const TableText& out);

// The sensors are sorted by their kinds, each of which has a heading. Where two
// fit beside each other on a wide terminal, they stand in two columns that are
// read one after the other.
void WriteSensorTable(std::span<const Sensor* const> sensors, std::size_t terminalColumns,
                      TableText& out);

}  // namespace strake::report
