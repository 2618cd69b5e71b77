// The one walk of all record readers: what it logs, sets, and in which order.
#include "tests/plugin/config/RecordWalk.h"

#include <gtest/gtest.h>
#include <vector>

namespace strake::tests {
namespace {

constexpr const char* kClass = "VELKSG_ServProc_IPProtocolEndpoint";

std::vector<unsigned char> Filled(const std::string& record, std::size_t size = 256) {
  std::vector<unsigned char> buffer(record.begin(), record.end());
  buffer.resize(size);
  return buffer;
}

TEST(ElementRecord, LogsAndThenSetsEachFieldBeforeItLooksAtTheNext) {
  static constexpr RecordField kFields[] = {
      {"Enabled", FieldForm::Plain, DecodeFlag<>},
      {"HostName", FieldForm::BoundedText, DecodeText},
      {"LineType", FieldForm::Plain, DecodeMtu, false},
      {"DHCPDomainName", FieldForm::String, DecodeText},
  };
  RecordWalk walk(kClass);
  const auto buffer = Filled(Plain(255, 128, Bytes({9})) + Text(0, 0, "abc", 2) +
                             Plain(7, 8, Bytes({77})) + Text(1, 2, "wide", 1));
  EXPECT_EQ(walk.Publish({.fields = kFields}, buffer).All(),
            (Lines{
                "log 4 [Enabled] Vector ID = 255 128",
                "log 3 Enabled = Enabled",
                "Set 1 Enabled string Enabled",
                "log 4 [HostName] Vector ID = 0 0",
                "log 4 [HostName] Data length = 5",
                "log 4 [HostName] Max length of string = 2",
                "log 3 HostName = ab",
                "Set 1 HostName string ab",
                "log 4 [LineType] Vector ID = 7 8",
                "log 3 LineType = 77 bytes",
                "log 4 [DHCPDomainName] Vector ID = 1 2",
                "log 4 [DHCPDomainName] Data length = 6",
                "log 4 [DHCPDomainName] Max length of string = 1",
                "log 3 DHCPDomainName = wide",
                "Set 1 DHCPDomainName string wide",
            }));
}

TEST(ElementRecord, LeavesVectorIdsOutAndLabelsTheLengthLinesWhereTheLayoutSaysSo) {
  static constexpr RecordField kFields[] = {
      {"Enabled", FieldForm::Plain, DecodeFlag<>, true, "Other"},
      {"HostName", FieldForm::String, DecodeText, true, "Label"},
  };
  RecordWalk walk(kClass);
  const auto buffer = Filled(Plain(1, 2, Bytes({0})) + Text(3, 4, "abc"));
  EXPECT_EQ(walk.Publish({.fields = kFields, .tellsVectorIds = false}, buffer).Logs(),
            (Lines{"3 Enabled = Disabled", "4 [Label] Data length = 5",
                   "4 [Label] Max length of string = 4", "3 HostName = abc"}));
}

TEST(ElementRecord, TellsTheLengthOfPlainElementsWhereTheLayoutSaysSo) {
  static constexpr RecordField kFields[] = {{"Enabled", FieldForm::Plain, DecodeFlag<>}};
  RecordWalk walk(kClass);
  const auto buffer = Filled(Plain(1, 2, Bytes({0, 1, 1})));
  EXPECT_EQ(walk.Publish({.fields = kFields, .tellsPlainLength = true}, buffer).Logs(),
            (Lines{"4 [Enabled] Vector ID = 1 2", "4 [Enabled] Data length = 3",
                   "3 Enabled = Disabled"}));
}

TEST(ElementRecord, AnElementWithTooFewBytesReadsZerosAndNeverTheNextElements) {
  static constexpr RecordField kFields[] = {
      {"HostIPAddress", FieldForm::Plain, DecodeAddress},
      {"Enabled", FieldForm::Plain, DecodeFlag<>},
      {"BurnedInMACAddress", FieldForm::Plain, DecodeMacHexadecimal},
      {"GatewayIPAddress", FieldForm::Plain, DecodeAddress},
  };
  RecordWalk walk(kClass);
  const auto buffer =
      Filled(Plain(9, 9, Bytes({10, 1})) + Plain(9, 9, "") + Plain(9, 9, Bytes({1, 2, 3, 4, 5})) +
             Plain(9, 9, "") + std::string(20, '\xFF'));
  EXPECT_EQ(
      walk.Publish({.fields = kFields}, buffer).Properties(1),
      (Lines{"HostIPAddress string 10.1.0.0", "Enabled string Disabled",
             "BurnedInMACAddress string 01:02:03:04:05:00", "GatewayIPAddress string 0.0.0.0"}));
}

TEST(ElementRecord, AStringWithALengthOfZeroStillTellsTheByteAtItsMaximum) {
  static constexpr RecordField kFields[] = {
      {"HostName", FieldForm::BoundedText, DecodeText},
      {"DHCPDomainName", FieldForm::String, DecodeText},
      {"Enabled", FieldForm::Plain, DecodeFlag<>},
  };
  RecordWalk walk(kClass);
  const auto buffer = Filled(Plain(1, 2, "") + Plain(3, 4, "") + Plain(5, 6, Bytes({1})));
  EXPECT_EQ(walk.Publish({.fields = kFields}, buffer).Logs(),
            (Lines{"4 [HostName] Vector ID = 1 2", "4 [HostName] Data length = 0",
                   "4 [HostName] Max length of string = 3", "3 HostName = ",
                   "4 [DHCPDomainName] Vector ID = 3 4", "4 [DHCPDomainName] Data length = 0",
                   "4 [DHCPDomainName] Max length of string = 5",
                   "3 DHCPDomainName = ", "4 [Enabled] Vector ID = 5 6", "3 Enabled = Enabled"}));
}

TEST(ElementRecord, AStringWithoutAClosingZeroTakesInTheNextElementsFirstByte) {
  static constexpr RecordField kFields[] = {
      {"DHCPDomainName", FieldForm::String, DecodeText},
      {"Enabled", FieldForm::Plain, DecodeFlag<>},
  };
  RecordWalk walk(kClass);
  const auto buffer = Filled(Plain(1, 2,
                                   "\x02"
                                   "abc") +
                             Plain('!', 6, Bytes({1})));
  EXPECT_EQ(walk.Publish({.fields = kFields}, buffer).Properties(1),
            (Lines{"DHCPDomainName string abc!", "Enabled string Enabled"}));
}

// Both elements behind the wrap: 253 holds the last header that fits 256 bytes.
TEST(ElementRecord, WhatLiesBeyondTheBufferIsZeroAndALargerBufferReachesFurther) {
  static constexpr RecordField kFields[] = {
      {"LineType", FieldForm::Plain, DecodeMtu, false},
      {"HostIPAddress", FieldForm::Plain, DecodeAddress},
      {"HostName", FieldForm::BoundedText, DecodeText},
  };
  std::string record = Plain(1, 2, std::string(247, 'x'));  // to 250
  record += Bytes({3, 4, 5, 192, 0, 2, 1, 0});              // to 258, which is 2
  RecordWalk walk(kClass);
  // At 2: L of the first element is the vector ID, and 'x' all the rest.
  const std::string name(static_cast<std::size_t>('x'), 'x');
  const Lines tail = {"4 [HostName] Vector ID = 247 120", "4 [HostName] Data length = 120",
                      "4 [HostName] Max length of string = 120", "3 HostName = " + name};
  const Lines head = {"4 [LineType] Vector ID = 1 2", "3 LineType = 120 bytes",
                      "4 [HostIPAddress] Vector ID = 3 4"};
  const auto small = Filled(record, 256);
  Lines expected = head;
  expected.emplace_back("3 HostIPAddress = 192.0.2.0");
  expected.insert(expected.end(), tail.begin(), tail.end());
  EXPECT_EQ(walk.Publish({.fields = kFields}, small).Logs(), expected);

  const auto large = Filled(record, 350);
  expected = head;
  expected.emplace_back("3 HostIPAddress = 192.0.2.1");
  expected.insert(expected.end(), tail.begin(), tail.end());
  EXPECT_EQ(walk.Publish({.fields = kFields}, large).Logs(), expected);
}

TEST(ElementRecord, HighBitBytesOfATextComeThroughAsTheyAre) {
  static constexpr RecordField kFields[] = {{"HostName", FieldForm::BoundedText, DecodeText}};
  std::string text;
  for (int byte = 1; byte <= 250; ++byte) {
    text.push_back(static_cast<char>(byte));
  }
  RecordWalk walk(kClass);
  const auto buffer = Filled(Text(128, 255, text));
  EXPECT_EQ(walk.Publish({.fields = kFields}, buffer).Properties(1),
            (Lines{"HostName string " + text}));
}

TEST(ElementRecord, NoFieldsMeanNoWork) {
  RecordWalk walk(kClass);
  EXPECT_EQ(walk.Publish({}, Filled("anything")).All(), Lines{});
}

}  // namespace
}  // namespace strake::tests
