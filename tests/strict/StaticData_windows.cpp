#include "tests/strict/StaticData.h"

// What the linker puts before and behind them.
extern "C" char __data_start__;
extern "C" char __bss_end__;

namespace strake::strict {

StaticData OwnStaticData() {
  return {reinterpret_cast<std::uintptr_t>(&__data_start__),
          reinterpret_cast<std::uintptr_t>(&__bss_end__)};
}

}  // namespace strake::strict
