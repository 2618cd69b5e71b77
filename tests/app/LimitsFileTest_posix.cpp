// A file of limits that has no end.
#include "app/LimitsFile.h"
#include "text/InputError.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(LimitsFile, RefusesADeviceWithoutAnEnd) {
  try {
    static_cast<void>(app::ReadLimits("/dev/zero"));
    FAIL() << "no refusal";
  } catch (const text::InputError& error) {
    EXPECT_STREQ(error.what(), "/dev/zero: a file of limits has at most 1 MiB");
  }
}

}  // namespace
}  // namespace strake::tests
