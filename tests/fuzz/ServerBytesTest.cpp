#include "fuzz/ServerBytes.h"
#include "tests/support/Places.h"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <stdexcept>

namespace strake::tests {
namespace {

using fuzz::ServerCase;
using platform::Reply;

ServerCase Decode(const std::string& bytes) {
  return fuzz::DecodeServer({reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()});
}

ServerCase RoundTrip(const ServerCase& serverCase) {
  return Decode(fuzz::EncodeServer(serverCase));
}

void ExpectEqual(const ServerCase& a, const ServerCase& b) {
  EXPECT_EQ(a.queries, b.queries);
  EXPECT_EQ(a.trouble.fault, b.trouble.fault);
  EXPECT_EQ(a.trouble.atCall, b.trouble.atCall);
  EXPECT_TRUE(a.server.host.machineTypeModel == b.server.host.machineTypeModel);
  EXPECT_TRUE(a.server.host.systemName == b.server.host.systemName);
  EXPECT_EQ(a.server.host.systemCreationClassName, b.server.host.systemCreationClassName);
  const platform::SpDescription& x = a.server.sp;
  const platform::SpDescription& y = b.server.sp;
  EXPECT_EQ(x.kind, y.kind);
  EXPECT_EQ(x.communicates, y.communicates);
  EXPECT_EQ(x.count, y.count);
  EXPECT_EQ(x.managementServerStopped, y.managementServerStopped);
  EXPECT_EQ(x.dornLibrary, y.dornLibrary);
  EXPECT_EQ(x.commandList, y.commandList);
  EXPECT_EQ(x.components, y.components);
  EXPECT_TRUE(x.instances == y.instances);
  EXPECT_TRUE(x.kestleCommands == y.kestleCommands);
}

// A server that answers one command so.
ServerCase Answering(const platform::ReplySequence& replies) {
  ServerCase result{{}, {{}}, {}};
  result.server.sp.instances = {{{{1, 1}, replies}}};
  return result;
}

TEST(ServerBytes, EveryServerOfTheTreeComesBackAsItWas) {
  std::size_t servers = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(tests::SourceFolder() + "/servers")) {
    SCOPED_TRACE(entry.path().string());
    const ServerCase original{
        platform::ReadServerDescription(entry), {{"VELKSG_SP_NumericSensor"}}, {}};
    ExpectEqual(RoundTrip(original), original);
    ++servers;
  }
  EXPECT_GE(servers, 2U);
}

TEST(ServerBytes, EverySettingComesBackAsItWas) {
  const std::vector<Reply> replies = {
      {"", 0, true},
      {"", -1, false},
      {std::string(255, 'a') + "b", 256, true},
      {std::string(8191, '\0'), INT32_MAX, true},
      {"\xFE\xFF" + std::string({0, 1, 2}), 5, false},
      {"abc", INT32_MIN, true},
      {"aaaaaab", 7, true},
      {"abcabcabcab", 11, false},
  };
  ServerCase original{{}, {{}, {"VELKSG_SP_NumericSensor", "", "Other"}}, {}};
  original.trouble = {platform::Fault::SendIsEmpty, 65535};
  original.server.host.machineTypeModel = {std::string(255, '%'), true};
  original.server.host.systemName = {"", true};
  original.server.host.systemCreationClassName = std::string("\0x", 2);
  platform::SpDescription& sp = original.server.sp;
  sp.kind = platform::SpKind::Both;
  sp.communicates = false;
  sp.count = INT32_MIN;
  sp.managementServerStopped = false;
  sp.dornLibrary = true;
  sp.commandList = false;
  sp.components = {{{4, 1, 3, 0, -1}, 254}, {{9, 9, 9, 0, 9}, 0}};
  sp.instances.resize(fuzz::kMostInstances);
  sp.instances[6] = {{{1, 1}, replies}, {{4, 1, 4, 7, -1}, {replies[0]}}, {{5}, {replies[7]}}};
  sp.kestleCommands = {{0, {replies[2]}}, {255, replies}};
  ExpectEqual(RoundTrip(original), original);
}

TEST(ServerBytes, EachPlainSettingIsItsOwn) {
  struct Case {
    const char* name;
    void (*change)(ServerCase& serverCase);
  };
  const Case cases[] = {
      {"nothing", [](ServerCase&) {}},
      {"orlo", [](ServerCase& c) { c.server.sp.kind = platform::SpKind::Orlo; }},
      {"tavit", [](ServerCase& c) { c.server.sp.kind = platform::SpKind::Tavit; }},
      {"both", [](ServerCase& c) { c.server.sp.kind = platform::SpKind::Both; }},
      {"silent", [](ServerCase& c) { c.server.sp.communicates = false; }},
      {"server runs", [](ServerCase& c) { c.server.sp.managementServerStopped = false; }},
      {"library", [](ServerCase& c) { c.server.sp.dornLibrary = true; }},
      {"no list", [](ServerCase& c) { c.server.sp.commandList = false; }},
      {"type throws", [](ServerCase& c) { c.server.host.machineTypeModel.throws = true; }},
      {"name throws", [](ServerCase& c) { c.server.host.systemName.throws = true; }},
      {"count 3", [](ServerCase& c) { c.server.sp.count = 3; }},
      {"count 4", [](ServerCase& c) { c.server.sp.count = 4; }},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    ServerCase original{{}, {{}}, {}};
    row.change(original);
    ExpectEqual(RoundTrip(original), original);
  }
}

TEST(ServerBytes, AnyBytesAreAServerThatCanBeWrittenAgain) {
  unsigned int state = 1;
  for (std::size_t size = 0; size < 600; ++size) {
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i) {
      state = state * 1103515245U + 12345U;
      bytes += static_cast<char>(state >> 16U);
    }
    const ServerCase decoded = Decode(bytes);
    ExpectEqual(RoundTrip(decoded), decoded);
    ASSERT_FALSE(HasFailure()) << size;
  }
}

TEST(ServerBytes, WhatTheFormHasNoRoomForIsRefused) {
  const Reply reply;
  const auto encode = [](const ServerCase& serverCase) {
    static_cast<void>(fuzz::EncodeServer(serverCase));
  };
  ServerCase longName = Answering({reply});
  longName.server.host.systemName.text = std::string(256, 'a');
  ServerCase manyInstances = Answering({reply});
  manyInstances.server.sp.instances.resize(8);
  ServerCase noQuery = Answering({reply});
  noQuery.queries.clear();
  ServerCase manyClasses = Answering({reply});
  manyClasses.queries[0].resize(16);
  EXPECT_THROW(encode(longName), std::length_error);
  EXPECT_THROW(encode(manyInstances), std::length_error);
  EXPECT_THROW(encode(noQuery), std::length_error);
  EXPECT_THROW(encode(manyClasses), std::length_error);
  EXPECT_THROW(encode(Answering({})), std::length_error);
  EXPECT_THROW(encode(Answering(std::vector<Reply>(9))), std::length_error);
  EXPECT_THROW(encode(Answering({{std::string(8192, 'a'), 0, true}})), std::length_error);
}

}  // namespace
}  // namespace strake::tests
