// The classes in the Managed Object Format.
#pragma once

#include <string>

namespace strake::schema {

// Needs no other schema: the classes have no superclass, and the qualifiers that
// they use are declared.
std::string MofClasses();

}  // namespace strake::schema
