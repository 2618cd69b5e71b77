// What the instances of the dial classes have in common.
#pragma once

#include "plugin/config/InstanceBuilder.h"

#include <cstddef>

namespace strake {

// Dial replies are read into more bytes than an element can begin in.
inline constexpr std::size_t kDialReplySize = 350;

inline constexpr IdentityProperty kDialIdentity[] = {
    IdentityProperty::CreationClassName,       IdentityProperty::SourceNode, IdentityProperty::Name,
    IdentityProperty::SystemCreationClassName, IdentityProperty::SystemName,
};

}  // namespace strake
