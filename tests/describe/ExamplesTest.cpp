// What stands for a value in a description to begin with.
#include "describe/Examples.h"
#include "describe/ReplyLayout.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

namespace strake::tests {
namespace {

// Every name that a value is asked by, with its decoder.
std::map<std::string_view, ValueDecoder> AllNames() {
  std::map<std::string_view, ValueDecoder> names;
  for (const NamedIdentifier& command : AllIdentifiers()) {
    if (const RecordLayout* const record = describe::FindRecord(command.name)) {
      for (const RecordField& field : record->fields) names.emplace(field.name, field.decode);
    } else {
      names.emplace(command.name, describe::FindDecoder(command.name));
    }
  }
  return names;
}

TEST(Examples, AreOfACommandOrAFieldEachAndStandOnce) {
  const auto names = AllNames();
  std::set<std::string_view> seen;
  for (const describe::Example& example : describe::Examples()) {
    EXPECT_TRUE(names.contains(example.name)) << example.name;
    EXPECT_TRUE(seen.insert(example.name).second) << example.name;
  }
}

TEST(Examples, AreWhatTheirDecodersReadInTheForm) {
  const auto names = AllNames();
  for (const describe::Example& example : describe::Examples()) {
    const ValueDecoder decode = names.at(example.name);
    if (decode != &DecodeText && decode != DecodeAddress) continue;
    const std::string value = describe::ExampleValue(example.name, decode);
    std::string text;
    const std::vector<unsigned char> bytes(value.begin(), value.end());
    decode(ByteView(bytes), text);
    EXPECT_EQ(text, example.value) << example.name;
  }
}

TEST(Examples, AreZerosWhereNoneIsGiven) {
  EXPECT_EQ(describe::ExampleValue("nobody's", &DecodeText), "");
  EXPECT_EQ(describe::ExampleValue("nobody's", DecodeAddress), std::string(4, '\0'));
  EXPECT_EQ(describe::ExampleValue("nobody's", nullptr), std::string(1, '\0'));
}

}  // namespace
}  // namespace strake::tests
