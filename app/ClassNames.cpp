#include "app/ClassNames.h"

#include "cim/Catalogue.h"
#include "text/OrList.h"

#include <algorithm>

namespace strake::app {

std::string ShortClassNames() {
  std::string names;
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    if (!names.empty()) {
      names += ", ";
    }
    names += one.shortName;
  }
  return names;
}

std::vector<std::string> AllClassNames() {
  std::vector<std::string> all = text::Names(cim::SchemaClasses(), &cim::SchemaClass::shortName);
  const std::vector<std::string> names = text::Names(cim::SchemaClasses(), &cim::SchemaClass::name);
  all.insert(all.end(), names.begin(), names.end());
  return all;
}

std::string RefusalOfClass(const std::string& name) {
  return "there is no class '" + name + "', expected one of " + ShortClassNames() +
         " or a full name (see strake classes)";
}

std::string ClassList() {
  std::size_t shortWidth = 0;
  std::size_t width = 0;
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    shortWidth = std::max(shortWidth, one.shortName.size());
    width = std::max(width, one.name.size());
  }
  std::string list;
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    list += one.shortName;
    list.append(shortWidth + 2 - one.shortName.size(), ' ');
    list += one.name;
    list.append(width + 2 - one.name.size(), ' ');
    list += one.description;
    list += '\n';
  }
  return list;
}

}  // namespace strake::app
