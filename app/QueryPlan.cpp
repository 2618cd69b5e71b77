#include "app/QueryPlan.h"

#include <algorithm>

namespace strake::app {
namespace {

// Without those before and behind it.
std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) {
    return {};
  }
  return text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

}  // namespace

bool IsKnownClass(std::string_view name) { return cim::FindSchemaClass(name) != nullptr; }

std::vector<ClassNames> PlanQueries(const ClassNames& wanted) {
  std::vector<ClassNames> plan;
  for (const cim::QueryGroup group : cim::kQueryGroups) {
    ClassNames query = cim::ClassNamesOf(group);
    if (!wanted.empty()) {
      std::erase_if(query, [&wanted](const std::string& name) {
        return std::ranges::find(wanted, name) == wanted.end();
      });
    }
    if (!query.empty()) {
      plan.push_back(std::move(query));
    }
  }
  return plan;
}

std::vector<ClassNames> QueriesOf(const CollectOptions& options) {
  if (options.queries.empty()) {
    return PlanQueries(options.classes);
  }
  std::vector<ClassNames> queries;
  for (const std::string& list : options.queries) {
    queries.push_back(SplitClassList(list));
  }
  return queries;
}

std::vector<const cim::SchemaClass*> ClassesOf(const std::vector<ClassNames>& queries) {
  std::vector<const cim::SchemaClass*> classes;
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    const auto asksForIt = [&one](const ClassNames& query) {
      return std::ranges::find(query, one.name) != query.end();
    };
    if (std::ranges::any_of(queries, asksForIt)) {
      classes.push_back(&one);
    }
  }
  return classes;
}

ClassNames SplitClassList(std::string_view list) {
  ClassNames names;
  if (WithoutBlanks(list).empty()) {
    return names;
  }
  for (std::size_t comma = list.find(','); comma != std::string_view::npos;
       comma = list.find(',')) {
    names.emplace_back(WithoutBlanks(list.substr(0, comma)));
    list.remove_prefix(comma + 1);
  }
  names.emplace_back(WithoutBlanks(list));
  return names;
}

}  // namespace strake::app
