#include "tests/support/ReadBack.h"

#include <stdexcept>

namespace strake::tests {
namespace {

// Takes a cell in quotes from the front.
std::string QuotedCell(std::string_view& csv) {
  std::string cell;
  csv.remove_prefix(1);
  while (true) {
    const std::size_t quote = csv.find('"');
    if (quote == csv.npos) throw std::runtime_error("CSV: a cell in quotes has no end");
    cell += csv.substr(0, quote);
    csv.remove_prefix(quote + 1);
    if (!csv.starts_with('"')) return cell;
    cell += '"';
    csv.remove_prefix(1);
  }
}

std::string Cell(std::string_view& csv) {
  if (csv.starts_with('"')) return QuotedCell(csv);
  const std::size_t end = std::min(csv.find_first_of(",\r\n\""), csv.size());
  const std::string cell(csv.substr(0, end));
  csv.remove_prefix(end);
  return cell;
}

}  // namespace

std::vector<std::vector<std::string>> ReadCsv(std::string_view csv) {
  std::vector<std::vector<std::string>> rows;
  while (!csv.empty()) {
    std::vector<std::string> row = {Cell(csv)};
    while (csv.starts_with(',')) {
      csv.remove_prefix(1);
      row.push_back(Cell(csv));
    }
    if (!csv.starts_with("\r\n")) throw std::runtime_error("CSV: a row does not end with CRLF");
    csv.remove_prefix(2);
    if (!rows.empty() && row.size() != rows.front().size()) {
      throw std::runtime_error("CSV: rows of different length");
    }
    rows.push_back(row);
  }
  return rows;
}

}  // namespace strake::tests
