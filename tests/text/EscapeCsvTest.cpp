// Cells of comma-separated values.
#include "text/EscapeCsv.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(EscapeCsv, QuotesWhatWouldEndACell) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"plain", "plain"},
      {"a b", "a b"},
      {" a ", " a "},
      {"a,b", "\"a,b\""},
      {"a\nb", "\"a\nb\""},
      {"a\rb", "\"a\rb\""},
      {"\"", "\"\"\"\""},
      {"say \"a\"", "\"say \"\"a\"\"\""},
      {"a;b", "a;b"},
      {"27.00 °C", "27.00 °C"},
      {"\xC3\xFF", "\\xC3\\xFF"},
      {std::string("a\0b", 3), std::string("a\0b", 3)},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(text::EscapeCsv(text), expected);
  }
}

TEST(EscapeCsv, PutsAnApostropheBeforeWhatASpreadsheetWouldCalculate) {
  const std::pair<std::string, std::string> cases[] = {
      {"=1+1", "'=1+1"},     {"=", "'="},
      {"@A1", "'@A1"},       {"+A1", "'+A1"},
      {"-", "'-"},           {"-1-1", "'-1-1"},
      {"--1", "'--1"},       {"+41 44", "'+41 44"},
      {"-1.", "'-1."},       {"-.5", "'-.5"},
      {"-1e", "'-1e"},       {"-1e+", "'-1e+"},
      {"-1 ", "'-1 "},       {"\t=1", "'\t=1"},
      {"\r=1", "\"'\r=1\""}, {"=\"a\",1", "\"'=\"\"a\"\",1\""},
      {"-1", "-1"},          {"+1", "+1"},
      {"-12.50", "-12.50"},  {"-7e-19", "-7e-19"},
      {"+7E+19", "+7E+19"},  {"a=1", "a=1"},
      {"'=1", "'=1"},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(text::EscapeCsv(text), expected);
  }
}

}  // namespace
}  // namespace strake::tests
