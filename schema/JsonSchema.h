// The JSON report as a JSON schema.
#pragma once

#include <string>

namespace strake::schema {

// Draft 2020-12, of "strake-report/1". Keys may be added to reports, so it admits
// those that it does not know.
std::string JsonSchema();

}  // namespace strake::schema
