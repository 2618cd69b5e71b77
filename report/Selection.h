// Which part of a collection a report shows.
#pragma once

#include "report/Report.h"

#include <optional>
#include <string>
#include <vector>

namespace strake::report {

// Service processors are numbered in eight bits, from 1.
inline constexpr int kHighestProcessor = 255;

// Of a class, only the instances whose property fits the glob. One that lacks
// the property does not.
struct PropertyFilter {
  const cim::SchemaClass* schema = nullptr;       // never null
  const cim::SchemaProperty* property = nullptr;  // of that class, never null
  std::string glob;
};

struct Selection {
  std::optional<int> node = {};              // the one service processor, from 1
  std::optional<std::string> sensor = {};    // a glob of names; other classes are left alone
  std::vector<PropertyFilter> filters = {};  // all that concern an instance must fit
};

// Takes away what was not selected. Findings that mean no one service processor
// stay; a service processor that was asked for and not found is a new one.
void Select(Collected& collected, const Selection& selection);

}  // namespace strake::report
