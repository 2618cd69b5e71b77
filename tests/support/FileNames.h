// Whether names lead to one file.
#pragma once

#include "os/FileIdentity.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace strake::tests {

inline bool AreSame(const std::filesystem::path& one, const std::filesystem::path& other) {
  const bool result = os::IdentityOf(one).IsSameAs(os::IdentityOf(other));
  EXPECT_EQ(os::IdentityOf(other).IsSameAs(os::IdentityOf(one)), result);
  return result;
}

}  // namespace strake::tests
