// Root may read and write everything, so it steps down for a while: to a user
// who owns nothing. Whoever is no root stays who he is.
#pragma once

#include <grp.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <vector>

namespace strake::tests {

class StepDown {
 public:
  StepDown() : fUser(::geteuid()), fGroup(::getegid()) {
    if (fUser == 0) {
      fGroups.resize(static_cast<std::size_t>(::getgroups(0, nullptr)));
      EXPECT_GE(::getgroups(static_cast<int>(fGroups.size()), fGroups.data()), 0);
      EXPECT_EQ(::setgroups(0, nullptr), 0);
      EXPECT_EQ(::setegid(kNobody), 0);
      EXPECT_EQ(::seteuid(kNobody), 0);
    }
  }
  StepDown(const StepDown&) = delete;
  StepDown& operator=(const StepDown&) = delete;
  ~StepDown() {
    if (fUser == 0) {
      EXPECT_EQ(::seteuid(fUser), 0);
      EXPECT_EQ(::setegid(fGroup), 0);
      EXPECT_EQ(::setgroups(fGroups.size(), fGroups.data()), 0);
    }
  }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t fUser;
  gid_t fGroup;
  std::vector<gid_t> fGroups;
};

}  // namespace strake::tests
