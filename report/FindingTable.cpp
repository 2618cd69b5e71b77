#include "report/FindingTable.h"

#include <algorithm>

namespace strake::report {
namespace {

constexpr std::size_t kRowIndent = 2;

std::size_t CountOf(std::span<const Finding> findings, Severity severity) {
  return static_cast<std::size_t>(std::ranges::count(findings, severity, &Finding::severity));
}

}  // namespace

std::string FindingCounts(std::span<const Finding> findings) {
  std::string text;
  if (const std::size_t count = CountOf(findings, Severity::Critical)) {
    AppendListed(text, std::to_string(count) + " critical");
  }
  if (const std::size_t count = CountOf(findings, Severity::Warning)) {
    AppendListed(text, Counted(count, "warning", "warnings"));
  }
  if (const std::size_t count = CountOf(findings, Severity::Info)) {
    AppendListed(text, std::to_string(count) + " info");
  }
  return text.empty() ? "none" : text;
}

void WriteFindingRows(std::span<const Finding> findings, TableText& out) {
  std::vector<Cells> rows;
  rows.reserve(findings.size());
  for (const Finding& finding : findings) {
    Cell text{finding.text};
    out.MarkIf(finding, text);
    rows.push_back({{std::string(SeverityName(finding.severity)), ShadeOf(finding.severity)},
                    {ProcessorLabel(finding.sp, "")},
                    text});
  }
  out.Rows(kRowIndent, rows, Columns(3));
}

}  // namespace strake::report
