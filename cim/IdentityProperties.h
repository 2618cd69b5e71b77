// Rows that classes of the catalogue share: what an instance and the node that
// it came from are known by.
#pragma once

#include "cim/Catalogue.h"

namespace strake::cim {

inline constexpr SchemaProperty kCreationClassName{
    "CreationClassName", "Creation class",
    "The name of the class, or of the family of classes, that the instance was made as.",
    CimType::String, Role::Key};

inline constexpr SchemaProperty kSourceNode{
    "SourceNode", "Node", "The number of the service processor that the instance came from.",
    CimType::Uint8, Role::Key};

inline constexpr SchemaProperty kName{
    "Name", "Name",
    "The name of the service processor or of a part of it, made of the machine type-model or of "
    "the system name and the number of the node.",
    CimType::String, Role::Key};

inline constexpr SchemaProperty kSystemCreationClassName{
    "SystemCreationClassName", "System class",
    "The creation class name of the computer system that holds the service processor.",
    CimType::String, Role::Key};

inline constexpr SchemaProperty kSystemName{
    "SystemName", "System", "The name of the computer system that holds the service processor.",
    CimType::String, Role::Key};

}  // namespace strake::cim
