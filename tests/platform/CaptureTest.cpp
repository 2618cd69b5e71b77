// "capture": where a description comes from.
#include "platform/server/ServerDescription.h"
#include "text/InputError.h"

#include <gtest/gtest.h>
#include <string>

namespace strake::platform {
namespace {

std::string RefusalOf(const std::string& capture) {
  try {
    ParseServerDescription(
        R"({"format":"strake-server/1","capture":)" + capture + R"(,"sp":{"kind":"none"}})",
        "test");
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "taken";
}

std::string RefusalOfTime(const std::string& time) {
  return RefusalOf("{\"at\":\"" + time + "\"}");
}

TEST(Capture, TellsWhereADescriptionComesFrom) {
  for (const char* const capture :
       {"{}", R"({"source":"SP at 192.0.2.21","at":"2026-03-01T09:41:27Z","notes":["a","b"]})",
        R"({"notes":[]})"}) {
    EXPECT_EQ(RefusalOf(capture), "taken") << capture;
  }
}

TEST(Capture, TakesDatesAndTimesOfTheInternet) {
  for (const char* const time :
       {"2026-03-01T09:41:27Z", "2026-03-01t09:41:27z", "0000-01-01T00:00:00.123456789+23:59",
        "2024-02-29T23:59:60-00:00"}) {
    EXPECT_EQ(RefusalOfTime(time), "taken") << time;
  }
  for (const char* const time :
       {"", "2026-03-01", "2026-03-01 09:41:27Z", "2026-03-01T09:41:27", "2026-02-29T09:41:27Z",
        "2026-13-01T09:41:27Z", "2026-00-01T09:41:27Z", "2026-03-00T09:41:27Z",
        "2026-03-01T24:41:27Z", "2026-03-01T09:60:27Z", "2026-03-01T09:41:61Z",
        "2026-03-01T09:41:27.Z", "2026-03-01T09:41:27+24:00", "2026-03-01T09:41:27+01:60",
        "2026-03-01T09:41:27+0100", "2026-03-01T09:41:27Z ", "+026-03-01T09:41:27Z",
        "2026-3-01T09:41:27Z"}) {
    EXPECT_EQ(RefusalOfTime(time),
              "test: at /capture/at: expected a date-time such as 2026-03-01T09:41:27Z, got \"" +
                  std::string(time) + "\"");
  }
}

TEST(Capture, IsRefusedWithThePlaceAndWhatWasExpected) {
  const struct {
    const char* capture;
    const char* message;
  } cases[] = {
      {"[]", "at /capture: expected an object, got an array"},
      {R"({"from":"x"})", "at /capture: expected no key but source, at, notes, got \"from\""},
      {R"({"source":7})", "at /capture/source: expected a string, got 7"},
      {R"({"at":7})", "at /capture/at: expected a string, got 7"},
      {R"({"notes":"x"})", "at /capture/notes: expected an array, got \"x\""},
      {R"({"notes":["x",true]})", "at /capture/notes/1: expected a string, got true"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOf(one.capture), std::string("test: ") + one.message);
  }
}

}  // namespace
}  // namespace strake::platform
