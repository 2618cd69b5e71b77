#include "tests/support/Allocations.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace strake::tests {
namespace {

constexpr long kNever = -1;

long live = 0;
long made = 0;
long madeBytes = 0;
long failing = kNever;
long failed = 0;
bool allFail = false;
Allocations::Witness witnessOfFailure = nullptr;
void* witnessContext = nullptr;

void* Allocate(std::size_t size) {
  ++made;
  madeBytes += static_cast<long>(size);
  if (failing != kNever && (made == failing || (allFail && made > failing))) {
    ++failed;
    if (made == failing && witnessOfFailure != nullptr) witnessOfFailure(witnessContext);
    throw std::bad_alloc();
  }
  void* const block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  ++live;
  return block;
}

void Free(void* block) noexcept {
  if (block != nullptr) {
    --live;
    std::free(block);
  }
}

}  // namespace

long Allocations::Live() { return live; }
long Allocations::Made() { return made; }
long Allocations::MadeBytes() { return madeBytes; }
void Allocations::Count() {
  made = 0;
  madeBytes = 0;
}

void Allocations::FailAt(long k, bool all, Witness witness, void* context) {
  made = 0;
  failing = k;
  failed = 0;
  allFail = all;
  witnessOfFailure = witness;
  witnessContext = context;
}

void Allocations::FailNever() { failing = kNever; }
long Allocations::Failed() { return failed; }

}  // namespace strake::tests

void* operator new(std::size_t size) { return strake::tests::Allocate(size); }
void* operator new[](std::size_t size) { return strake::tests::Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  try {
    return strake::tests::Allocate(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}
void operator delete(void* block) noexcept { strake::tests::Free(block); }
void operator delete[](void* block) noexcept { strake::tests::Free(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { strake::tests::Free(block); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { strake::tests::Free(block); }
