// Handles that the host leaves empty reach its assertion handler, at once.
#include "tests/strict/Classes.h"

#include <optional>

namespace strake::strict {
namespace {

template <typename Action>
std::optional<AssertionFailed> Assertion(const Action& action) {
  try {
    action();
  } catch (const AssertionFailed& failed) {
    return failed;
  }
  return std::nullopt;
}

void ExpectEmptyHandle(const std::optional<AssertionFailed>& failed) {
  ASSERT_TRUE(failed.has_value());
  EXPECT_EQ(failed->expression, "px != 0");
  EXPECT_EQ(failed->line, 315);
}

// The host makes nothing at the `nth` such call and leaves the handle alone.
void ExpectAssertion(const ClassCase& classCase, Call call, std::size_t nth) {
  SCOPED_TRACE(testing::PrintToString(call) + " " + std::to_string(nth));
  StrictHost host;
  Prepare(host, classCase);
  std::size_t calls = 0;
  host.makesNothing = [&](const Event& event) { return event.call == call && ++calls == nth; };
  ExpectEmptyHandle(Assertion([&] { host.Query({classCase.className}); }));
  // Nothing is asked of an instance that was there before.
  std::size_t behind = 0;
  calls = 0;
  for (const Event& event : host.events) {
    if (event.call == call) ++calls;
    if (calls == nth && (event.call == Call::SetProperty || event.call == Call::Commit)) ++behind;
  }
  EXPECT_EQ(behind, 0U);
  EXPECT_EQ(host.Count(Call::Commit), nth - 1);
  EXPECT_TRUE(LiveValues().empty());
  EXPECT_EQ(host.cimNamespace.use_count(), 1);
  EXPECT_EQ(host.Lines().back(), "TSPEnviron destructor entered.");
}

TEST_P(EveryClass, NeedsTheClassThatItAskedFor) {
  for (const std::size_t nth : {std::size_t{1}, std::size_t{2}, GetParam().instances}) {
    ExpectAssertion(GetParam(), Call::GetClass, nth);
  }
}

TEST_P(EveryClass, NeedsTheInstanceThatItAskedFor) {
  for (const std::size_t nth : {std::size_t{1}, std::size_t{2}, GetParam().instances}) {
    ExpectAssertion(GetParam(), Call::CreateInstance, nth);
  }
}

TEST_P(EveryClass, NeedsANamespace) {
  boost::shared_ptr<NVELKZEV20::ICIMClass> requested;
  host.cimNamespace->GetClass(requested, GetParam().className, {});
  auto& query = dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks&>(*host.plugin);
  ExpectEmptyHandle(Assertion([&] { query.Query({}, {requested}); }));
  EXPECT_EQ(host.Count(Call::CreateInstance), 0U);
  EXPECT_TRUE(LiveValues().empty());
}

TEST(RequestedClass, MustNotBeAnEmptyHandle) {
  StrictHost host;
  auto& query = dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks&>(*host.plugin);
  ExpectEmptyHandle(Assertion(
      [&] { query.Query(host.cimNamespace, {boost::shared_ptr<NVELKZEV20::ICIMClass>()}); }));
  EXPECT_EQ(host.Count(Call::GetSplibraryInstance), 0U);
  EXPECT_EQ(host.cimNamespace.use_count(), 1);
}

}  // namespace
}  // namespace strake::strict
