#include "app/QueryPlan.h"

#include <algorithm>
#include <array>
#include <utility>

namespace strake::app {
namespace {

struct PlannedClass {
  std::string_view name;
  std::size_t query;  // classes of one number come in one query
};

constexpr std::array<PlannedClass, 8> kClasses{{
    {"VELKSG_ServProc_IPProtocolEndpoint", 0},
    {"VELKSG_ServProc_IPProtocolEndpoint2", 0},
    {"VELKSG_ServProc_DialProtocolEndpoint1", 1},
    {"VELKSG_ServProc_DialProtocolEndpoint2", 1},
    {"VELKSG_ServProc_DialProtocolEndpoint3", 1},
    {"VELKSG_ServProc_DialProtocolEndpoint4", 1},
    {"VELKSG_SP_NumericSensor", 2},
    {"VELKSG_SP_ComputerSystem", 3},
}};

constexpr std::size_t kQueries = kClasses.back().query + 1;

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

bool IsKnownClass(std::string_view name) {
  return std::any_of(kClasses.begin(), kClasses.end(),
                     [name](const PlannedClass& planned) { return planned.name == name; });
}

std::string KnownClasses() {
  std::string text;
  for (const PlannedClass& planned : kClasses) {
    if (!text.empty()) {
      text += ", ";
    }
    text += planned.name;
  }
  return text;
}

std::vector<ClassNames> PlanQueries(const ClassNames& wanted) {
  std::array<ClassNames, kQueries> queries;
  for (const PlannedClass& planned : kClasses) {
    if (wanted.empty() || std::find(wanted.begin(), wanted.end(), planned.name) != wanted.end()) {
      queries.at(planned.query).emplace_back(planned.name);
    }
  }
  std::vector<ClassNames> plan;
  for (ClassNames& query : queries) {
    if (!query.empty()) {
      plan.push_back(std::move(query));
    }
  }
  return plan;
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
