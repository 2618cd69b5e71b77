// A file descriptor that is closed with its owner. For the sources of this folder.
#pragma once

#include <unistd.h>
#include <utility>

namespace strake::os {

class Descriptor {
 public:
  explicit Descriptor(int number = -1) noexcept : fNumber(number) {}
  Descriptor(Descriptor&& other) noexcept : fNumber(std::exchange(other.fNumber, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(fNumber, other.fNumber);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (IsOpen()) {
      ::close(fNumber);
    }
  }

  [[nodiscard]] bool IsOpen() const noexcept { return fNumber >= 0; }
  [[nodiscard]] int Number() const noexcept { return fNumber; }

  // Gives the error, 0 when closing brought none.
  int Close() noexcept;

 private:
  int fNumber;
};

// Gives the error, 0 when everything is written. Waits for a descriptor that
// would block. Safe in a signal handler.
int WriteAll(int descriptor, const char* bytes, std::size_t count) noexcept;

}  // namespace strake::os
