// The pages that the catalogue is told in.
#include "cim/Catalogue.h"
#include "schema/MarkdownClasses.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace strake::tests {
namespace {

// Of the table that begins with the row.
std::vector<std::string> TableRows(const std::string& page, const std::string& firstRow) {
  std::vector<std::string> rows;
  std::istringstream lines(page);
  for (std::string line; std::getline(lines, line);) {
    if (!rows.empty() && !line.starts_with('|')) break;
    if (!rows.empty() || line.starts_with(firstRow)) rows.push_back(line);
  }
  return rows;
}

TEST(MarkdownClasses, AreWhatTheirPageHolds) {
  EXPECT_EQ(ReadFile(SourceFolder() + "/docs/classes.md"), schema::MarkdownClasses())
      << "write it anew with: strake schema --format markdown";
}

TEST(MarkdownClasses, BeginEveryRowOfTheReadmesTable) {
  const std::string head = "| Short name | Class | Content |";
  const auto written = TableRows(schema::MarkdownClassTable(), head);
  const auto readme = TableRows(ReadFile(SourceFolder() + "/README.md"), head);
  ASSERT_EQ(written.size(), cim::SchemaClasses().size() + 2);
  ASSERT_EQ(readme.size(), written.size());
  for (std::size_t i = 0; i < written.size(); ++i) {
    EXPECT_EQ(readme[i].substr(0, written[i].size()), written[i]);
  }
}

TEST(MarkdownClasses, HaveARowForEveryProperty) {
  const std::string page = schema::MarkdownClasses();
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    const std::string heading = "\n## `" + std::string(schema.name) + "`\n";
    ASSERT_NE(page.find(heading), std::string::npos) << schema.name;
    const auto rows = TableRows(page.substr(page.find(heading)), "| Property |");
    ASSERT_EQ(rows.size(), schema.properties.size() + 2) << schema.name;
    for (std::size_t i = 0; i < schema.properties.size(); ++i) {
      EXPECT_TRUE(rows[i + 2].starts_with("| `" + std::string(schema.properties[i].name) + "` | "))
          << rows[i + 2];
    }
  }
}

TEST(MarkdownClasses, NoteKeysSecretsLengthsAndUnits) {
  const std::string page = schema::MarkdownClasses();
  for (const char* const row :
       {"| `SourceNode` | uint8 | The number of the service processor that the instance came "
        "from. | key |\n",
        "| `PagerPIN` | string | The PIN of the pager. | secret |\n",
        "| `DNSIP1` | string | The IP address of the first DNS server. | at most 15 characters |\n",
        "| `BaudRate` | string | The speed of the port. | in `bits per second` |\n",
        "| `HostName` | string | The host name of the interface. | |\n"}) {
    EXPECT_NE(page.find(row), std::string::npos) << row;
  }
}

// A cell would end there.
TEST(MarkdownClasses, HoldNoBarInACell) {
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    EXPECT_EQ(schema.description.find('|'), std::string_view::npos);
    for (const cim::SchemaProperty& property : schema.properties) {
      EXPECT_EQ(property.description.find('|'), std::string_view::npos);
      EXPECT_EQ(property.units.find('|'), std::string_view::npos);
    }
  }
}

}  // namespace
}  // namespace strake::tests
