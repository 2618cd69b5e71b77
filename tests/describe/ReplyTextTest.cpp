// Each reply in the form that people read it in, and read again the same.
#include "describe/ReplyText.h"
#include "platform/server/ElementRecord.h"
#include "platform/server/ServerDescription.h"
#include "text/DotNotation.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::PlainElement;
using platform::Reply;
using platform::ReplySequence;
using platform::StringElement;

const std::string kLogin{4, 1, 4, 1, '\xFF'};
const std::string kLocation{4, 9, 3, 1, 2};
const std::string kClock{4, 4, 1};

Reply Whole(const std::string& bytes) { return {bytes, static_cast<int>(bytes.size()), true}; }

std::string AsRecord(const std::string& command, const ReplySequence& replies) {
  std::string text;
  describe::AppendAsRecord(text, 0, command, replies);
  return text;
}

std::string Login(const std::string& first) {
  return first + PlainElement(2, 0, std::string(1, '\3')) + StringElement(0, 7, "555", 32);
}

TEST(ReplyAsRecord, IsWrittenInTheFormOfItsBytes) {
  const std::string rest =
      "  {\"id\": 2, \"data\": \"03\"},\n"
      "  {\"id\": 0, \"header\": 7, \"text\": \"555\", \"max\": 32}\n]}";
  const std::string cut = Login(StringElement(1, 0, "USER", 5));
  const struct {
    const char* name;
    std::string command;
    ReplySequence replies;
    std::string text;
  } cases[] = {
      {"a record",
       kLogin,
       {Whole(cut)},
       "{\"elements\": [\n  {\"id\": 1, \"text\": \"USER\"},\n" + rest},
      {"a text that is no UTF-8",
       kLogin,
       {Whole(Login(StringElement(1, 0, "\xFF", 2)))},
       "{\"elements\": [\n  {\"id\": 1, \"data\": \"02 FF 00\"},\n" + rest},
      {"a text without a zero byte",
       kLogin,
       {Whole(Login(PlainElement(1, 0, "\2AB")))},
       "{\"elements\": [\n  {\"id\": 1, \"data\": \"02 41 42\"},\n" + rest},
      {"a text with a zero byte within",
       kLogin,
       {Whole(Login(StringElement(1, 0, std::string("A\0B", 3), 4)))},
       "{\"elements\": [\n  {\"id\": 1, \"data\": \"04 41 00 42 00\"},\n" + rest},
      {"no data",
       kLogin,
       {Whole(Login(PlainElement(1, 0, "")))},
       "{\"elements\": [\n  {\"id\": 1, \"data\": \"\"},\n" + rest},
      {"a control character",
       kLogin,
       {Whole(Login(StringElement(1, 0, "\x1B", 2)))},
       "{\"elements\": [\n  {\"id\": 1, \"text\": \"\\u001b\"},\n" + rest},
      {"a cut record", kLogin, {Whole(std::string("\1\0\7USE", 6))}, "\"01 00 07 55 53 45\""},
      {"more than a record",
       kLogin,
       {Whole("\1\1" + std::string("\0\2\2\0\3\3\0\4", 8))},
       "\"01 01 00 02 02 00 03 03 00 04\""},
      {"no bytes", kLogin, {Whole("")}, "\"\""},
      {"another length",
       kLogin,
       {{std::string("\1"), 300, true}},
       "{\"hex\": \"01\", \"length\": 300}"},
      {"a failure", kLogin, {{"", 0, false}}, "{\"succeeds\": false}"},
      {"a sequence", kLocation, {Whole("A"), Whole("B")}, "[\"41\", \"42\"]"},
      {"a text", kLocation, {Whole("R\xC3\xBC\"")}, "{\"text\": \"R\xC3\xBC\\\"\"}"},
      {"a value that is no UTF-8", kLocation, {Whole("\xC3")}, "\"C3\""},
      {"a clock", kClock, {Whole("ABC")}, "\"41 42 43\""},
      {"an unknown command", "\7\7", {Whole("ABC")}, "\"41 42 43\""},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.name);
    const std::string text = AsRecord(one.command, one.replies);
    EXPECT_EQ(text, one.text);
    const auto read = platform::ParseServerDescription(
        R"({"format":"strake-server/1","sp":{"kind":"orlo","instances":[{"dot_commands":{")" +
            text::DotNotationOf(one.command) + "\":" + text + "}}]}}",
        "reply");
    EXPECT_EQ(read.sp.instances.front().at(one.command), one.replies);
  }
}

}  // namespace
}  // namespace strake::tests
