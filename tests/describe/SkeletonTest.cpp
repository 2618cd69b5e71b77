// What a description begins with: everything is asked for and answered.
#include "cim/Catalogue.h"
#include "describe/DescriptionText.h"
#include "describe/Skeleton.h"
#include "findings/TavitLists.h"
#include "plugin/config/Records.h"
#include "text/DotNotation.h"

#include <gtest/gtest.h>
#include <set>

namespace strake::tests {
namespace {

using describe::DescriptionText;
using describe::ReplyForm;

TEST(OrloSkeleton, AnswersEachCommandOfThePlugInForItsFirstInstanceAndBothSerialPorts) {
  const platform::ServerDescription server = describe::OrloSkeleton("9999-AC1");
  ASSERT_EQ(server.sp.instances.size(), 1U);
  std::set<std::string> expected = {"4.1.2.2.255"};
  for (const NamedIdentifier& command : AllIdentifiers()) {
    DotIdentifier identifier = command.identifier;
    if (command.isNumbered) identifier.Address(1);
    expected.insert(text::DotNotation(identifier.Bytes()));
  }
  std::set<std::string> answered;
  for (const auto& [identifier, replies] : server.sp.instances.front()) {
    answered.insert(text::DotNotationOf(identifier));
    ASSERT_EQ(replies.size(), 1U);
    EXPECT_TRUE(replies.front().succeeds);
    EXPECT_GT(replies.front().length, 0) << text::DotNotationOf(identifier);
  }
  EXPECT_EQ(answered, expected);
}

TEST(OrloSkeleton, IsTheSameServerWhenItsTextIsRead) {
  const platform::ServerDescription server = describe::OrloSkeleton("5301-AR2");
  for (const ReplyForm form : {ReplyForm::Bytes, ReplyForm::Records}) {
    const platform::ServerDescription read =
        platform::ParseServerDescription(DescriptionText(server, std::nullopt, form), "skeleton");
    EXPECT_EQ(read.description, server.description);
    EXPECT_EQ(read.host.machineTypeModel.text, "5301-AR2");
    EXPECT_EQ(read.sp.kind, platform::SpKind::Orlo);
    EXPECT_EQ(read.sp.count, 1);
    EXPECT_EQ(read.sp.components, server.sp.components);
    EXPECT_EQ(read.sp.instances, server.sp.instances);
  }
}

TEST(OrloSkeleton, WritesRecordsForPeople) {
  const std::string text =
      DescriptionText(describe::OrloSkeleton("9999-AC1"), std::nullopt, ReplyForm::Records);
  for (const char* const part : {
           "\n          \"1.1\": \"01\",\n",
           "\n          \"2.2.1.4\": \"50 FB\",\n",
           "\n          \"4.1.4.1.255\": {\"elements\": [\n"
           "            {\"id\": 1, \"text\": \"USER1\"},\n"
           "            {\"id\": 2, \"data\": \"00\"},\n"
           "            {\"id\": 3, \"text\": \"\"}\n"
           "          ]},\n",
           "\n          \"4.4.1\": \"18 01 01 00 00 00 00\",\n",
           "\n          \"4.9.1.1.16.1\": {\"text\": \"sp-1\"},\n",
           "\n          \"4.9.1.1.16.2\": \"C0 00 02 01\",\n",
       }) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
}

// First bytes: the lengths that the family believes.
TEST(TavitSkeleton, AnswersTheListsOfEachFamily) {
  const struct {
    const char* machine;
    std::string voltages;
    std::string fans;
    std::string temperatures;
  } cases[] = {
      {"5120-AC1", "12 A6 00 00 04 B0 01 F4 01 4A 00 FA 00 96 00 7D 00 78",
       "16 A2 00 00 00 00 0B B8 0B B8 0B B8 0B B8 0B B8 0B B8 0B B8 0B B8",
       "0A A4 00 00 00 00 19 19 19 19"},
      {"5123", "12 A6 00 00 04 B0 FB 50 01 F4 01 4A 00 FA 00 78 00 78",
       "0F A2 00 00 00 0B B8 0B B8 0B B8 0B B8 0B B8", "0C A4 00 00 00 00 19 19 19 19 19 19"},
      {"5125-K2G", "10 A6 00 00 01 4A 00 FA 00 78 01 F4 04 B0 FB 50",
       "1C A2 00 00 00 00 00 00 00 00 0B B8 0B B8 0B B8 0B B8 0B B8 0B B8 0B B8 0B B8 0B B8",
       "12 A4 00 00 00 00 19 19 19 19 19 19 19 00 00 00 00 00"},
      {"5128",
       "1E A6 00 00 04 B0 01 F4 01 4A 00 FA 00 96 00 7D 07 08 04 B0 01 F4 01 4A 00 FA 00 B4 00 78",
       "02 A2", "09 A4 00 00 00 19 19 19 19"},
  };
  for (const auto& one : cases) {
    const std::string text =
        DescriptionText(describe::TavitSkeleton(one.machine), std::nullopt, ReplyForm::Records);
    const std::string commands = "\"kestle_commands\": {\n      \"162\": \"" + one.fans +
                                 "\",\n      \"164\": \"" + one.temperatures +
                                 "\",\n      \"166\": \"" + one.voltages + "\"\n    }";
    EXPECT_NE(text.find(commands), std::string::npos) << text;
    EXPECT_NE(text.find(std::string("\"machine_type_model\": \"") + one.machine + '"'),
              std::string::npos)
        << text;
  }
}

}  // namespace
}  // namespace strake::tests
