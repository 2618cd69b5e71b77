// The table of the report's formats. Help, refusals and the choice of a writer
// come from it.
#pragma once

#include "report/Writer.h"

#include <span>
#include <string>
#include <string_view>

namespace strake::report {

// Where a reader of the report sees the findings.
enum class FindingsGo { InReport, ToStandardError };

// How many classes a report of the format can hold.
enum class Classes { Any, ExactlyOne };

// Whether it has a layout to choose.
enum class Laid { AsItIs, OutForPeople };

struct Format {
  std::string_view name;
  std::string_view fileEnding;  // with its point
  std::string_view mediaType;
  Writer write;
  FindingsGo findings;
  Classes classes = Classes::Any;
  Laid laid = Laid::AsItIs;
};

// The first one is the default.
std::span<const Format> Formats();

// Null when there is none of this name.
const Format* FindFormat(std::string_view name);
// The format of the file's ending, whatever its case; null when there is none.
const Format* FindFormatOfFile(std::string_view fileName);

// For people: "table, json or csv".
std::string FormatNames();

}  // namespace strake::report
