// The classes as a page of documentation.
#pragma once

#include <string>

namespace strake::schema {

// docs/classes.md: a table of the classes, and one of the properties of each.
std::string MarkdownClasses();

// A row for each class, with short name, class and content, below a head.
std::string MarkdownClassTable();

}  // namespace strake::schema
