#include "report/TableText.h"

#include "text/Utf8.h"

#include <algorithm>
#include <array>

namespace strake::report {
namespace {

constexpr std::size_t kPiece = 65536;

// In the order of Shade: none, bold, blue, yellow, red.
constexpr std::array<std::string_view, 5> kBegins{"", "\x1b[1m", "\x1b[34m", "\x1b[33m",
                                                  "\x1b[31m"};
constexpr std::string_view kBeginReverse = "\x1b[7m";
constexpr std::string_view kEnd = "\x1b[0m";

}  // namespace

Shade ShadeOf(Severity severity) {
  switch (severity) {
    case Severity::Warning:
      return Shade::Warning;
    case Severity::Critical:
      return Shade::Critical;
    case Severity::Info:
      break;
  }
  return Shade::Info;
}

Shade ShadeOf(SensorState state) {
  switch (state) {
    case SensorState::Warning:
      return Shade::Warning;
    case SensorState::Critical:
      return Shade::Critical;
    case SensorState::Ok:
      break;
  }
  return Shade::None;
}

void Widen(Columns& columns, std::span<const Cell> cells) {
  for (std::size_t index = 0; index < cells.size(); ++index) {
    std::size_t& width = columns[index].width;
    width = std::max(width, text::CountCodePoints(cells[index].text));
  }
}

std::size_t WidthOf(const Columns& columns) {
  std::size_t width = 0;
  for (const Column& column : columns) {
    if (column.width > 0) {
      width += (width == 0 ? 0 : column.gap) + column.width;
    }
  }
  return width;
}

std::string Counted(std::size_t count, std::string_view one, std::string_view many) {
  return std::to_string(count).append(1, ' ').append(count == 1 ? one : many);
}

std::string ProcessorLabel(const std::optional<int>& number, std::string_view none) {
  return number ? "SP " + std::to_string(*number) : std::string(none);
}

void AppendListed(std::string& list, std::string_view part) {
  list.append(list.empty() ? "" : ", ").append(part);
}

void TableText::Line(std::size_t indent, std::string_view text, Shade shade) {
  Line(indent, {std::string(text), shade});
}

void TableText::Line(std::size_t indent, const Cell& cell) {
  fOut.append(indent, ' ');
  Append(cell);
  EndLine();
}

void TableText::Row(std::size_t indent, const Cells& cells, const Columns& columns) {
  std::size_t blanks = indent;  // owed to the next text
  bool isFirst = true;
  for (std::size_t index = 0; index < cells.size(); ++index) {
    const Column& column = columns[index];
    if (column.width == 0) {
      continue;
    }
    const Cell& cell = cells[index];
    const std::size_t padding = column.width - text::CountCodePoints(cell.text);
    blanks += isFirst ? 0 : column.gap;
    isFirst = false;
    if (column.align == Align::Right || cell.text.empty()) {
      blanks += padding;
    }
    if (!cell.text.empty()) {
      fOut.append(blanks, ' ');
      Append(cell);
      blanks = column.align == Align::Left ? padding : 0;
    }
  }
  EndLine();
}

void TableText::Rows(std::size_t indent, const std::vector<Cells>& rows, Columns columns) {
  for (const Cells& cells : rows) {
    Widen(columns, cells);
  }
  for (const Cells& cells : rows) {
    Row(indent, cells, columns);
  }
}

void TableText::Mark(Cell& cell) const {
  if (fLayout->colour == Colour::Terminal) {
    cell.isMarked = true;
  } else if (!cell.text.empty()) {
    cell.text.insert(0, "> ");
  }
}

void TableText::Append(const Cell& cell) {
  if (fLayout->colour == Colour::Never || (cell.shade == Shade::None && !cell.isMarked)) {
    fOut += cell.text;
  } else {
    fOut.append(kBegins.at(static_cast<std::size_t>(cell.shade)))
        .append(cell.isMarked ? kBeginReverse : "")
        .append(cell.text)
        .append(kEnd);
  }
}

void TableText::EndLine() {
  fOut += '\n';
  if (fOut.size() >= kPiece) {
    Flush();
  }
}

void TableText::Flush() {
  (*fSink)(fOut);
  fOut.clear();
}

Cell ValueCell(const Row& row, const TableText& out) {
  Cell cell{row.value};
  const bool isCompanionMarked = row.companion != nullptr && out.IsMarked(*row.companion);
  out.MarkIf(isCompanionMarked ? *row.companion : *row.property, cell);
  return cell;
}

}  // namespace strake::report
