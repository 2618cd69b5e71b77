#include "report/Formats.h"

#include "report/CimXmlReport.h"
#include "report/CsvReport.h"
#include "report/HtmlReport.h"
#include "report/JsonReport.h"
#include "report/MofReport.h"
#include "report/TableReport.h"
#include "text/Glob.h"
#include "text/OrList.h"

#include <algorithm>

namespace strake::report {
namespace {

constexpr Format kFormats[] = {
    {"table", ".txt", "text/plain; charset=utf-8", WriteTable, FindingsGo::InReport, Classes::Any,
     Laid::OutForPeople},
    {"json", ".json", "application/json", WriteJson, FindingsGo::InReport},
    {"jsonl", ".jsonl", "application/jsonl", WriteJsonLine, FindingsGo::InReport},
    {"csv", ".csv", "text/csv; charset=utf-8", WriteCsv, FindingsGo::ToStandardError,
     Classes::ExactlyOne},
    {"html", ".html", "text/html; charset=utf-8", WriteHtml, FindingsGo::InReport},
    {"mof", ".mof", "text/plain; charset=utf-8", WriteMof, FindingsGo::ToStandardError},
    {"cimxml", ".xml", "application/xml; charset=utf-8", WriteCimXml, FindingsGo::ToStandardError},
};

}  // namespace

std::span<const Format> Formats() { return kFormats; }

const Format* FindFormat(std::string_view name) {
  const auto* const found = std::ranges::find(kFormats, name, &Format::name);
  return found == std::end(kFormats) ? nullptr : found;
}

const Format* FindFormatOfFile(std::string_view fileName) {
  const auto* const found = std::ranges::find_if(kFormats, [fileName](const Format& one) {
    return text::MatchesGlob(std::string(1, '*').append(one.fileEnding), fileName);
  });
  return found == std::end(kFormats) ? nullptr : found;
}

std::string FormatNames() { return text::OrList(Formats(), &Format::name); }

}  // namespace strake::report
