// Where the tests find the tree and what was built: what STRAKE_SOURCE_DIR and
// STRAKE_BINARY_DIR say in the environment, else where they were built.
#pragma once

#include <cstdlib>
#include <string>

namespace strake::tests {

inline std::string Place(const char* variable, const char* otherwise) {
  const char* const place = std::getenv(variable);
  return place != nullptr ? place : otherwise;
}

inline std::string SourceFolder() { return Place("STRAKE_SOURCE_DIR", STRAKE_SOURCE_DIR); }
inline std::string BuildFolder() { return Place("STRAKE_BINARY_DIR", STRAKE_BINARY_DIR); }

}  // namespace strake::tests
