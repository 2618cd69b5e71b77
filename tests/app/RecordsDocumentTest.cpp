// The sensors of docs/records.md are those of the code.
#include "plugin/environ/KestleSensors.h"
#include "plugin/environ/OrloSensors.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "text/DotNotation.h"

#include <gtest/gtest.h>
#include <span>
#include <sstream>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;

// A cell's text, without the blanks around it and the marks of literal text.
std::string CellText(const std::string& cell) {
  const std::size_t begin = cell.find_first_not_of(' ');
  if (begin == std::string::npos) {
    return "";
  }
  const std::string text = cell.substr(begin, cell.find_last_not_of(' ') + 1 - begin);
  return text.front() == '`' ? text.substr(1, text.size() - 2) : text;
}

Row Cells(const std::string& line) {
  Row row;
  std::istringstream cells(line.substr(1));
  for (std::string cell; std::getline(cells, cell, '|');) {
    row.push_back(CellText(cell));
  }
  return row;
}

// The rows below the heading that begins with this cell.
Table TableOf(const std::string& heading) {
  std::istringstream lines(ReadFile(SourceFolder() + "/docs/records.md"));
  std::string line;
  while (std::getline(lines, line) && !line.starts_with("| " + heading + " |")) {
  }
  std::getline(lines, line);
  Table rows;
  while (std::getline(lines, line) && line.starts_with("|")) {
    rows.push_back(Cells(line));
  }
  return rows;
}

Table OrloTable(std::span<const OrloSensorEntry> sensors) {
  Table rows;
  for (const OrloSensorEntry& sensor : sensors) {
    rows.push_back({sensor.name, text::DotNotation(sensor.identifier.Bytes())});
  }
  return rows;
}

Table PlacesTable(const std::vector<std::span<const char* const>>& families) {
  Table rows;
  for (const std::span<const char* const> names : families) {
    while (rows.size() < names.size()) {
      rows.push_back({std::to_string(rows.size() + 1)});
    }
  }
  for (std::size_t place = 0; place < rows.size(); ++place) {
    for (const std::span<const char* const> names : families) {
      rows[place].push_back(place < names.size() ? names[place] : "");
    }
  }
  return rows;
}

TEST(RecordsDocument, NamesEveryOrloSensorBesideItsIdentifier) {
  EXPECT_EQ(TableOf("Voltage | Identifier"), OrloTable(kOrloVoltages));
  EXPECT_EQ(TableOf("Temperature | Identifier"), OrloTable(kOrloTemperatures));
  EXPECT_EQ(TableOf("Fan | Identifier"), OrloTable(kOrloFans));
}

TEST(RecordsDocument, NamesEveryTavitSensorAtItsPlaceInTheListOfEachFamily) {
  EXPECT_EQ(TableOf("Voltage | Pilkar/Mossel/Fendra"),
            PlacesTable({kPilkarVoltageNames, kTessilVoltageNames, kNembroVoltageNames,
                         kBladeVoltageNames}));
  EXPECT_EQ(TableOf("Temperature | Pilkar/Mossel/Fendra"),
            PlacesTable({kFourTemperatureNames, kTessilTemperatureNames, kNembroTemperatureNames,
                         kFourTemperatureNames}));
}

}  // namespace
}  // namespace strake::tests
