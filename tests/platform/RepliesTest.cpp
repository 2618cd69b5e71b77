#include "platform/server/ElementRecord.h"
#include "platform/server/ServerDescription.h"
#include "text/InputError.h"

#include <gtest/gtest.h>
#include <string>

namespace strake::platform {
namespace {

// The replies of one Kestle command, written so in a description.
ReplySequence Read(const std::string& json) {
  const ServerDescription server = ParseServerDescription(
      R"({"format":"strake-server/1","sp":{"kind":"tavit","kestle_commands":{"1":)" + json + "}}}",
      "test");
  return server.sp.kestleCommands.at(1);
}

std::string RefusalOf(const std::string& json) {
  try {
    Read(json);
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "taken";
}

TEST(Replies, AreReadInEveryForm) {
  const std::string nothing;
  const struct {
    const char* json;
    std::string bytes;
    int length;
    bool succeeds;
  } cases[] = {
      {R"("F4 01")", "\xF4\x01", 2, true},
      {R"("")", nothing, 0, true},
      {R"({})", nothing, 0, true},
      {R"({"hex":"AB"})", "\xAB", 1, true},
      {R"({"hex":"AB","length":2147483647})", "\xAB", 2147483647, true},
      {R"({"hex":"AB","length":-2147483648})", "\xAB", -2147483647 - 1, true},
      {R"({"length":5})", nothing, 5, true},
      {R"({"succeeds":false})", nothing, 0, false},
      {R"({"hex":"AB CD","length":0,"succeeds":false})", "\xAB\xCD", 0, false},
      {R"({"text":"Rack 4"})", "Rack 4", 6, true},
      {R"({"text":""})", nothing, 0, true},
      {R"({"text":"é\u0000\n"})", std::string("\xC3\xA9\0\n", 4), 4, true},
      {R"({"elements":[]})", nothing, 0, true},
      {R"({"elements":[{"data":""}]})", std::string(3, '\0'), 3, true},
      {R"({"elements":[{"id":255,"header":7,"data":"AB CD"}]})", PlainElement(255, 7, "\xAB\xCD"),
       5, true},
      {R"({"elements":[{"text":"abc"}]})", StringElement(0, 0, "abc", 4), 8, true},
      {R"({"elements":[{"id":9,"header":1,"text":"abc","max":2}]})", StringElement(9, 1, "abc", 2),
       8, true},
      {R"({"elements":[{"text":"","max":255},{"data":"00"}]})",
       StringElement(0, 0, "", 255) + PlainElement(0, 0, std::string(1, '\0')), 9, true},
  };
  for (const auto& one : cases) {
    const ReplySequence replies = Read(one.json);
    ASSERT_EQ(replies.size(), 1U) << one.json;
    EXPECT_EQ(replies[0].bytes, one.bytes) << one.json;
    EXPECT_EQ(replies[0].length, one.length) << one.json;
    EXPECT_EQ(replies[0].succeeds, one.succeeds) << one.json;
  }
}

TEST(Replies, FollowEachOtherInAnArray) {
  const ReplySequence replies = Read(R"(["01",{"succeeds":false},{"text":"x"}])");
  ASSERT_EQ(replies.size(), 3U);
  EXPECT_EQ(replies[0].bytes, "\x01");
  EXPECT_FALSE(replies[1].succeeds);
  EXPECT_EQ(replies[2].bytes, "x");
}

TEST(Replies, TakeElementsUpToTheirGreatestLength) {
  const std::string data(510, '0');
  EXPECT_EQ(Read(R"({"elements":[{"data":")" + data + R"("}]})")[0].length, 258);
  const std::string text(253, 't');
  EXPECT_EQ(Read(R"({"elements":[{"text":")" + text + R"("}]})")[0].bytes,
            StringElement(0, 0, text, 254));
}

TEST(Replies, AreRefusedWithTheirPlaceAndWhatWasExpected) {
  const std::string place = "test: at /sp/kestle_commands/1";
  const struct {
    std::string json;
    const char* message;
  } cases[] = {
      {"5", ": expected a reply (a string or an object), got 5"},
      {"null", ": expected a reply (a string or an object), got null"},
      {R"("F")", R"(: expected hexadecimal byte pairs, got "F")"},
      {R"("é")", R"(: expected hexadecimal byte pairs, got "\xC3\xA9")"},
      {R"({"hex":1})", "/hex: expected hexadecimal byte pairs, got 1"},
      {R"({"hex":"XY"})", R"(/hex: expected hexadecimal byte pairs, got "XY")"},
      {R"({"bytes":"00"})", R"(: expected no key but hex, length, succeeds, got "bytes")"},
      {R"({"length":1.0})", "/length: expected an integer from -2147483648 to 2147483647, got 1.0"},
      {R"({"length":2147483648})",
       "/length: expected an integer from -2147483648 to 2147483647, got 2147483648"},
      {R"({"length":-2147483649})",
       "/length: expected an integer from -2147483648 to 2147483647, got -2147483649"},
      {R"({"length":18446744073709551615})",
       "/length: expected an integer from -2147483648 to 2147483647, got 18446744073709551615"},
      {R"({"length":"1"})",
       R"(/length: expected an integer from -2147483648 to 2147483647, got "1")"},
      {R"({"succeeds":1})", "/succeeds: expected true or false, got 1"},
      {R"({"text":7})", "/text: expected a string, got 7"},
      {R"({"text":"a","length":1})", R"(: expected no key but text, got "length")"},
      {R"({"text":"a","elements":[]})", R"(: expected no key but text, got "elements")"},
      {R"({"elements":[],"hex":""})", R"(: expected no key but elements, got "hex")"},
      {R"({"elements":{}})", "/elements: expected an array, got an object"},
      {R"({"elements":["00"]})", R"(/elements/0: expected an object, got "00")"},
      {R"({"elements":[{}]})", R"(/elements/0: expected either "data" or "text", got neither)"},
      {R"({"elements":[{"data":"00"},{"data":"","text":""}]})",
       R"(/elements/1: expected either "data" or "text", got both)"},
      {R"({"elements":[{"data":"","max":1}]})",
       R"(/elements/0: expected no "max" beside "data", got one)"},
      {R"({"elements":[{"data":"","length":1}]})",
       R"(/elements/0: expected no key but id, header, data, text, max, got "length")"},
      {R"({"elements":[{"id":256,"data":""}]})",
       "/elements/0/id: expected an integer from 0 to 255, got 256"},
      {R"({"elements":[{"header":-1,"data":""}]})",
       "/elements/0/header: expected an integer from 0 to 255, got -1"},
      {R"({"elements":[{"text":"a","max":256}]})",
       "/elements/0/max: expected an integer from 0 to 255, got 256"},
      {R"({"elements":[{"text":null}]})", "/elements/0/text: expected a string, got null"},
      {R"({"elements":[{"data":")" + std::string(512, '0') + R"("}]})",
       "/elements/0/data: expected at most 255 bytes of data, got 256"},
      {R"({"elements":[{"text":")" + std::string(254, 't') + R"("}]})",
       "/elements/0/text: expected at most 253 bytes of text, got 254"},
      {"[]", ": expected at least one reply, got an empty array"},
      {R"([["00"]])", "/0: expected a reply (a string or an object), got an array"},
      {R"(["00",false])", "/1: expected a reply (a string or an object), got false"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOf(one.json), place + one.message) << one.json;
  }
}

}  // namespace
}  // namespace strake::platform
