// Every element record and every dot command of this plug-in, by name.
#pragma once

#include "plugin/config/ElementRecord.h"
#include "plugin/spaccess/DotIdentifier.h"

#include <span>
#include <string_view>

namespace strake {

struct NamedRecord {
  std::string_view name;
  RecordLayout layout;
};

std::span<const NamedRecord> AllRecords();

struct NamedIdentifier {
  std::string_view name;  // of a sensor or a value: as it is published
  DotIdentifier identifier;
  bool isNumbered;  // the byte at DotIdentifier::kInstancePlace is any instance's
};

// The presence test comes first.
std::span<const NamedIdentifier> AllIdentifiers();

}  // namespace strake
