// Dereferencing host handles.
#pragma once

#include <boost/assert.hpp>
#include <boost/current_function.hpp>
#include <boost/shared_ptr.hpp>

#ifndef BOOST_ENABLE_ASSERT_HANDLER
#error "handles need Boost's assertion handler: define BOOST_ENABLE_ASSERT_HANDLER"
#endif

namespace strake {

// The line that is reported for an empty handle. Boost's own headers report
// another line from version to version, so handles are dereferenced here and
// not through their operators.
inline constexpr long kEmptyHandleLine = 315;

// The object behind a handle. An empty handle goes to the host's assertion
// handler; there is no recovery after a handler that returns.
template <typename T>
T& Deref(const boost::shared_ptr<T>& handle) {
  T* const px = handle.get();
  if (px == nullptr) {
    boost::assertion_failed("px != 0", BOOST_CURRENT_FUNCTION, __FILE__, kEmptyHandleLine);
  }
  // NOLINTNEXTLINE(clang-analyzer-core.uninitialized.UndefReturn): see above.
  return *px;
}

}  // namespace strake
