// The classes as the command line calls them.
#pragma once

#include <string>
#include <vector>

namespace strake::app {

// For people: the short names, separated by ", ".
std::string ShortClassNames();

// The short names, then the names.
std::vector<std::string> AllClassNames();

// "there is no class 'X', did you mean 'Y'? expected one of ...".
std::string RefusalOfClass(const std::string& name);

// What `strake classes` prints: a line a class with short name, name and what
// it is.
std::string ClassList();

}  // namespace strake::app
