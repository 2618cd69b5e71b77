#include "os/Signals.h"

namespace strake::os {
namespace {

// The latest that has entered; null: nothing is unfinished.
Unfinished*& First() noexcept {
  static Unfinished* first = nullptr;
  return first;
}

}  // namespace

void Unfinished::EndAll() noexcept {
  while (First() != nullptr) {
    Unfinished* const one = First();
    First() = one->fNext;
    one->EndBySignal();
  }
}

void Unfinished::Enter() noexcept {
  const SignalHold hold;
  fNext = First();
  First() = this;
}

void Unfinished::Leave() noexcept {
  const SignalHold hold;
  Unfinished** link = &First();
  while (*link != nullptr && *link != this) {
    link = &(*link)->fNext;
  }
  if (*link != nullptr) {
    *link = fNext;
  }
}

}  // namespace strake::os
