// The file of --limits.
#pragma once

#include "report/Limits.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace strake::app {

// Both throw text::InputError: one line with file, line and what was expected. "-"
// is standard input.
report::Limits ReadLimits(const std::filesystem::path& file);
report::Limits ParseLimits(std::string_view text, const std::string& name);

}  // namespace strake::app
