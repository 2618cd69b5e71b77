// Lines of a report for people: headings, and rows of columns that line up.
#pragma once

#include "report/Finding.h"
#include "report/InstanceText.h"
#include "report/Sensor.h"
#include "report/Writer.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace strake::report {

// How a text stands out on a terminal.
enum class Shade : std::uint8_t { None, Heading, Info, Warning, Critical };

Shade ShadeOf(Severity severity);
Shade ShadeOf(SensorState state);

// All texts are safe to show.
struct Cell {
  std::string text;
  Shade shade = Shade::None;
  bool isMarked = false;  // shown in reverse
};
using Cells = std::vector<Cell>;

enum class Align : std::uint8_t { Left, Right };

inline constexpr std::size_t kGap = 2;

struct Column {
  Align align = Align::Left;
  std::size_t gap = kGap;  // in front of it, unless nothing stands there
  std::size_t width = 0;   // in code points; one of none takes no place at all
};
using Columns = std::vector<Column>;

// Makes the columns as wide as the cells need; there are as many cells at most.
void Widen(Columns& columns, std::span<const Cell> cells);
std::size_t WidthOf(const Columns& columns);

// "1 sensor", "2 sensors", "0 queries".
std::string Counted(std::size_t count, std::string_view one, std::string_view many);

// "SP 1".
std::string ProcessorLabel(const std::optional<int>& number, std::string_view none);

// A part to a list: "1 critical, 2 warnings".
void AppendListed(std::string& list, std::string_view part);

// What is written is handed over in large pieces.
class TableText {
 public:
  // Both must outlive it.
  TableText(const Layout& layout, const Sink& sink) : fLayout(&layout), fSink(&sink) {}

  void Line(std::size_t indent, std::string_view text, Shade shade = Shade::None);
  void Line(std::size_t indent, const Cell& cell);
  // No row ends with blanks.
  void Row(std::size_t indent, const Cells& cells, const Columns& columns);
  // All of them in columns of their own.
  void Rows(std::size_t indent, const std::vector<Cells>& rows, Columns columns);
  void Blank() { EndLine(); }
  // Points the reader to a cell before it is written, where this part of the
  // report is marked: with colours in reverse, without them by "> " in front. An
  // empty one stays as it is.
  template <typename Part>
  void MarkIf(const Part& part, Cell& cell) const {
    if (IsMarked(part)) {
      Mark(cell);
    }
  }
  template <typename Part>
  [[nodiscard]] bool IsMarked(const Part& part) const {
    return fLayout->marks != nullptr && fLayout->marks->Has(part);
  }
  // Hands over what is left.
  void Flush();

 private:
  void Mark(Cell& cell) const;
  void Append(const Cell& cell);
  void EndLine();

  const Layout* fLayout;
  const Sink* fSink;
  std::string fOut;
};

// The value of an instance's row.
Cell ValueCell(const Row& row, const TableText& out);

}  // namespace strake::report
