#include "os/Signals.h"

namespace strake::os {
namespace {

struct List {
  Unfinished* first = nullptr;  // the latest that has entered
};

List& TheList() noexcept {
  static List list;
  return list;
}

}  // namespace

void Unfinished::EndAll() noexcept {
  while (TheList().first != nullptr) {
    Unfinished* const one = TheList().first;
    TheList().first = one->fNext;
    one->EndBySignal();
  }
}

void Unfinished::Enter() noexcept {
  const SignalHold hold;
  fNext = TheList().first;
  TheList().first = this;
}

void Unfinished::Leave() noexcept {
  const SignalHold hold;
  Unfinished** link = &TheList().first;
  while (*link != nullptr && *link != this) {
    link = &(*link)->fNext;
  }
  if (*link != nullptr) {
    *link = fNext;
  }
}

}  // namespace strake::os
