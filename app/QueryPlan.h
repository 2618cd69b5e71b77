// Which queries bring the wanted classes. The plug-in runs one builder a query
// (IP before dial before sensors before the computer system), so classes of
// different builders need queries of their own.
#pragma once

#include "app/CollectOptions.h"
#include "cim/Catalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace strake::app {

using ClassNames = std::vector<std::string>;

bool IsKnownClass(std::string_view name);

// As few queries as bring every wanted class, in the plug-in's precedence
// whatever the order of the names; a name given twice counts once. No name at
// all wants all eight. The names are known ones.
std::vector<ClassNames> PlanQueries(const ClassNames& wanted);

// The queries that the options ask for.
std::vector<ClassNames> QueriesOf(const CollectOptions& options);

// The catalogue's classes among those of the queries, in its order.
std::vector<const cim::SchemaClass*> ClassesOf(const std::vector<ClassNames>& queries);

// "A, B" gives A and B, "" nothing; but for the blanks around them, names are
// taken as they stand.
ClassNames SplitClassList(std::string_view list);

}  // namespace strake::app
