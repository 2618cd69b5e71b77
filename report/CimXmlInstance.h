// A CIM instance as elements of CIM-XML.
#pragma once

#include "cim/StoredInstance.h"

#include <string>

namespace pugi {
class xml_node;
}

namespace strake::report {

// Appends an INSTANCE to the element and gives it back: a PROPERTY for each
// property, in the order in which they were set, of the type that its value has.
pugi::xml_node AppendInstance(pugi::xml_node parent, const cim::StoredInstance& instance);

// Puts a QUALIFIER of a text before what the INSTANCE has.
void PrependQualifier(pugi::xml_node instance, const std::string& name, const std::string& text);

// The element as readers of CIM-XML take it in: nothing between its elements,
// none of them self-closed, and of references the five named entities alone.
void AppendXml(std::string& out, const pugi::xml_node& element);

}  // namespace strake::report
