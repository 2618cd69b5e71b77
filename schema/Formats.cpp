#include "schema/Formats.h"

#include "schema/JsonSchema.h"
#include "schema/MarkdownClasses.h"
#include "schema/MofClasses.h"
#include "text/OrList.h"

#include <algorithm>

namespace strake::schema {
namespace {

constexpr Format kFormats[] = {
    {"mof", "the classes, for CIM tools", MofClasses},
    {"json-schema", "the JSON report, for programs that read it", JsonSchema},
    {"markdown", "the classes, for people", MarkdownClasses},
};

}  // namespace

std::span<const Format> Formats() { return kFormats; }

const Format* FindFormat(std::string_view name) {
  const auto* const found = std::ranges::find(kFormats, name, &Format::name);
  return found == std::end(kFormats) ? nullptr : found;
}

std::string FormatNames() { return text::OrList(Formats(), &Format::name); }

}  // namespace strake::schema
