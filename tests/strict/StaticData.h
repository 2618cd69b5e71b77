// The program's own static objects.
#pragma once

#include <cstdint>

namespace strake::strict {

// Their addresses: from the first to before the second.
struct StaticData {
  std::uintptr_t begin;
  std::uintptr_t end;
};

StaticData OwnStaticData();

}  // namespace strake::strict
