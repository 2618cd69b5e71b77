// The host's status-code object: one 32-bit number, 0 meaning complete.
#pragma once

#include <cstdint>

namespace NVELKZEV20 {

enum EZEVStatusCode : std::int32_t { kZEVSuccess = 0 };

class TZEVStatusCode {
 public:
  explicit TZEVStatusCode(EZEVStatusCode code);

  // Reads the number in place; the host library has no operation for it.
  [[nodiscard]] std::int32_t Code() const { return fCode; }

 private:
  std::int32_t fCode;
};

static_assert(sizeof(TZEVStatusCode) == sizeof(std::int32_t));

}  // namespace NVELKZEV20
