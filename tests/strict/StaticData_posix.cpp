#include "tests/strict/StaticData.h"

// What the linker puts before and behind them.
extern "C" char __data_start;
extern "C" char _end;

namespace strake::strict {

StaticData OwnStaticData() {
  return {reinterpret_cast<std::uintptr_t>(&__data_start), reinterpret_cast<std::uintptr_t>(&_end)};
}

}  // namespace strake::strict
