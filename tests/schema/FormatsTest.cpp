// The table of the forms in which classes and reports are described.
#include "schema/Formats.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(SchemaFormats, AreMofJsonSchemaAndMarkdown) {
  EXPECT_EQ(schema::FormatNames(), "mof, json-schema or markdown");
  for (const schema::Format& format : schema::Formats()) {
    EXPECT_EQ(schema::FindFormat(format.name), &format);
    EXPECT_FALSE(format.content.empty());
    EXPECT_TRUE(format.write().ends_with("\n")) << format.name;
  }
  for (const char* const unknown : {"", "MOF", "json", "mof "}) {
    EXPECT_EQ(schema::FindFormat(unknown), nullptr) << unknown;
  }
}

}  // namespace
}  // namespace strake::tests
