// Root may read and write everything, so it steps down for a while: to a user
// who owns nothing. Whoever is no root stays who he is.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace strake::tests {

class StepDown {
 public:
  StepDown() : fUser(::geteuid()) {
    if (fUser == 0) {
      EXPECT_EQ(::seteuid(kNobody), 0);
    }
  }
  StepDown(const StepDown&) = delete;
  StepDown& operator=(const StepDown&) = delete;
  ~StepDown() { EXPECT_EQ(::seteuid(fUser), 0); }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t fUser;
};

}  // namespace strake::tests
