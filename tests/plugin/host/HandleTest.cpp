// Empty handles reach the host's assertion handler in the form it knows.
#include "platform/hostcore/HostControl.h"
#include "plugin/host/Handle.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(Handle, AnEmptyOneReachesTheAssertionHandlerWithItsExpressionAndLine) {
  const boost::shared_ptr<int> empty;
  try {
    Deref(empty);
    FAIL() << "no assertion";
  } catch (const platform::AssertionError& error) {
    const std::string text = error.what();
    EXPECT_NE(text.find("px != 0"), std::string::npos) << text;
    EXPECT_NE(text.find("Deref"), std::string::npos) << text;
    EXPECT_NE(text.find("line 315"), std::string::npos) << text;
  }
}

TEST(Handle, AFilledOneGivesItsObject) {
  const boost::shared_ptr<int> filled(new int(7));
  EXPECT_EQ(&Deref(filled), filled.get());
}

}  // namespace
}  // namespace strake::tests
