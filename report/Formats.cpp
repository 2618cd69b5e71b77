#include "report/Formats.h"

#include "report/HtmlReport.h"
#include "report/JsonReport.h"
#include "report/TableReport.h"

#include <algorithm>

namespace strake::report {
namespace {

constexpr Format kFormats[] = {
    {"table", ".txt", "text/plain; charset=utf-8", WriteTable, FindingsGo::InReport, Classes::Any,
     Laid::OutForPeople},
    {"json", ".json", "application/json", WriteJson, FindingsGo::InReport},
    {"html", ".html", "text/html; charset=utf-8", WriteHtml, FindingsGo::InReport},
};

}  // namespace

std::span<const Format> Formats() { return kFormats; }

const Format* FindFormat(std::string_view name) {
  const auto* const found = std::ranges::find(kFormats, name, &Format::name);
  return found == std::end(kFormats) ? nullptr : found;
}

const Format* FindFormatOfFile(std::string_view fileName) {
  const auto* const found = std::ranges::find_if(
      kFormats, [fileName](const Format& one) { return fileName.ends_with(one.fileEnding); });
  return found == std::end(kFormats) ? nullptr : found;
}

std::string FormatNames() {
  std::string names;
  for (const Format& format : kFormats) {
    if (!names.empty()) {
      names += &format == &kFormats[std::size(kFormats) - 1] ? " or " : ", ";
    }
    names += format.name;
  }
  return names;
}

}  // namespace strake::report
