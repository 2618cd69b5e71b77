// The table of formats.
#include "report/Formats.h"
#include "tests/report/Instances.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <set>

namespace strake::tests {
namespace {

TEST(Formats, AreThese) {
  const struct {
    std::string name;
    std::string ending;
    std::string mediaType;
    report::Classes classes = report::Classes::Any;
  } expected[] = {
      {"table", ".txt", "text/plain; charset=utf-8"},
      {"json", ".json", "application/json"},
      {"jsonl", ".jsonl", "application/jsonl"},
      {"csv", ".csv", "text/csv; charset=utf-8", report::Classes::ExactlyOne},
      {"html", ".html", "text/html; charset=utf-8"},
      {"mof", ".mof", "text/plain; charset=utf-8"},
      {"cimxml", ".xml", "application/xml; charset=utf-8"},
  };
  ASSERT_EQ(report::Formats().size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const report::Format& format = report::Formats()[i];
    EXPECT_EQ(format.name, expected[i].name);
    EXPECT_EQ(format.fileEnding, expected[i].ending);
    EXPECT_EQ(format.mediaType, expected[i].mediaType);
    EXPECT_EQ(format.classes, expected[i].classes);
  }
  EXPECT_EQ(report::FormatNames(), "table, json, jsonl, csv, html, mof or cimxml");
}

TEST(Formats, AreFoundByTheirNamesAndEndingsAndNoOthers) {
  std::set<std::string_view> names;
  std::set<std::string_view> endings;
  for (const report::Format& format : report::Formats()) {
    EXPECT_TRUE(names.insert(format.name).second) << format.name;
    EXPECT_TRUE(endings.insert(format.fileEnding).second) << format.fileEnding;
    EXPECT_EQ(report::FindFormat(format.name), &format);
    EXPECT_EQ(report::FindFormatOfFile("a/b" + std::string(format.fileEnding)), &format);
    std::string upper(format.fileEnding);
    std::ranges::transform(upper, upper.begin(), [](unsigned char character) {
      return static_cast<char>(std::toupper(character));
    });
    EXPECT_EQ(report::FindFormatOfFile("A" + upper), &format);
  }
  for (const char* const unknown : {"", "Table", "xml", "json ", "jso"}) {
    EXPECT_EQ(report::FindFormat(unknown), nullptr) << unknown;
  }
  for (const char* const unknown : {"", "json", "a.jsonx", "a.json/b", "/dev/null"}) {
    EXPECT_EQ(report::FindFormatOfFile(unknown), nullptr) << unknown;
  }
}

TEST(Formats, TellOfEqualKeysExactlyWhereTheySayThatTheyDo) {
  const auto report = ReportOf({Sensor(1, "Fan", 1, 65, 0), Sensor(1, "Fan", 2, 65, 0)});
  for (const report::Format& format : report::Formats()) {
    EXPECT_EQ(Written(format.write, report).find("have equal keys") != std::string::npos,
              format.findings == report::FindingsGo::InReport)
        << format.name;
  }
}

TEST(Formats, EndTheWritingWhenTheSinkThrows) {
  const auto report = ReportOf({Sensor(1, "Fan", 1, 65, 0)});
  for (const report::Format& format : report::Formats()) {
    int calls = 0;
    const report::Sink full = [&calls](std::string_view /*text*/) {
      ++calls;
      throw std::runtime_error("full");
    };
    EXPECT_THROW(format.write(report, {}, full), std::runtime_error);
    EXPECT_EQ(calls, 1) << format.name;
  }
}

}  // namespace
}  // namespace strake::tests
