// The report as a page.
#include "report/HtmlReport.h"
#include "report/PageAssets.h"
#include "tests/report/Instances.h"
#include "tests/support/ReadBack.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

namespace strake::tests {
namespace {

using report::Secrets;

std::string Page(const report::Report& report) { return Written(report::WriteHtml, report); }

std::string Page(const std::vector<cim::StoredInstance>& instances) {
  return Page(ReportOf(instances));
}

std::size_t Count(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

// What stands in the page between the two, at its first place.
std::string Between(const std::string& page, const std::string& before, const std::string& after) {
  const std::size_t begin = page.find(before);
  if (begin == std::string::npos) {
    return "no " + before;
  }
  const std::size_t end = page.find(after, begin + before.size());
  return page.substr(begin + before.size(), end - begin - before.size());
}

// Every property of every class, texts with the given one.
std::vector<cim::StoredInstance> Everything(const std::string& text) {
  std::vector<cim::StoredInstance> instances;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    cim::StoredInstance& instance = instances.emplace_back();
    instance.schema = &schema;
    for (const cim::SchemaProperty& property : schema.properties) {
      switch (property.type) {
        case cim::CimType::String:
          instance.properties.push_back({&property, text});
          break;
        case cim::CimType::DateTime:
          instance.properties.push_back({&property, SomeTime()});
          break;
        case cim::CimType::Sint32:
          instance.properties.push_back({&property, -1});
          break;
        case cim::CimType::Uint16:
          instance.properties.push_back({&property, Units(5)});
          break;
        case cim::CimType::Uint8:
          instance.properties.push_back({&property, Node(1)});
          break;
      }
    }
  }
  return instances;
}

report::Collected Hostile(const std::string& text) {
  report::CollectionFacts facts = SomeFacts();
  facts.server = {text, text, "orlo"};
  return {.facts = facts,
          .instances = Everything(text),
          .processors = {{1, report::Answer::Yes}, {2, report::Answer::No}},
          .silentSensors = {{1, text, report::SensorKind::Voltage}},
          .findings = {{report::Severity::Critical, report::FindingCode::SpSilent, 2, text}}};
}

TEST(HtmlReport, PermitsItsOwnStyleAndScriptAndNothingElse) {
  const std::string page = Page({});
  EXPECT_EQ(Between(page, "Content-Security-Policy\" content=\"", "\""),
            "default-src 'none'; style-src '" + std::string(report::PageStyle().hash) +
                "'; script-src '" + std::string(report::PageScript().hash) +
                "'; base-uri 'none'; form-action 'none'");
  EXPECT_EQ(Between(page, "<style>", "</style>"), report::PageStyle().text);
  EXPECT_EQ(Between(page, "<script>", "</script>"), report::PageScript().text);
  const std::regex hash("sha256-[A-Za-z0-9+/]{43}=");
  EXPECT_TRUE(std::regex_match(std::string(report::PageStyle().hash), hash));
  EXPECT_NE(report::PageStyle().hash, report::PageScript().hash);
}

TEST(HtmlReport, AsksForNothing) {
  const HtmlPage page = ReadHtml(Page(Everything("x")));
  const std::regex asks(" (on[a-z]+|style|src|srcset|action|data|poster)=|href=\"[^#]");
  EXPECT_EQ(std::ranges::count_if(
                page.tags, [&](const std::string& tag) { return std::regex_search(tag, asks); }),
            0);
  EXPECT_EQ(report::PageStyle().text.find("url("), std::string_view::npos);
  EXPECT_EQ(report::PageStyle().text.find("@import"), std::string_view::npos);
}

TEST(HtmlReport, IsReadStrictly) {
  EXPECT_EQ(ReadHtml("a<b c><input>d<style>x > y</style></b>e").tags,
            (std::vector<std::string>{"b c", "input", "style"}));
  EXPECT_EQ(ReadHtml("a<b c><input>d<style>x > y</style></b>e").text, "ade");
  for (const char* const bad : {"<b", "<b>", "</b>", "<b></i>", "a > b", "<style>x", "<script>"}) {
    EXPECT_THROW(ReadHtml(bad), std::runtime_error) << bad;
  }
}

TEST(HtmlReport, WithoutInstancesSaysSo) {
  const std::string page = Page({});
  EXPECT_NO_THROW(ReadHtml(page));
  EXPECT_EQ(Count(page, "No instances were collected."), 1U);
  EXPECT_EQ(Count(page, "<tr class="), 0U);
  EXPECT_EQ(Count(page, "<section class=\"processor\""), 0U);
  EXPECT_EQ(Between(page, "<title>", "</title>"), "rack7 - Strake report");
  EXPECT_EQ(Between(page, "datetime=\"", "<"), "2024-03-18T09:41:07Z\">2024-03-18 09:41:07 UTC");
}

TEST(HtmlReport, HasTheSameMarkupWhateverTheTextsAre) {
  // Texts may stand in names of parts, and nowhere else in a tag.
  const auto tagsOf = [](const std::string& page) {
    std::vector<std::string> tags = ReadHtml(page).tags;
    for (std::string& tag : tags) {
      if (const std::size_t label = tag.find("aria-label=\""); label != std::string::npos) {
        tag.erase(label, tag.find('"', label + 12) - label);
      }
    }
    return tags;
  };
  const std::vector<std::string> tags =
      tagsOf(Page(report::Report(Hostile("text"), Secrets::Shown)));
  const std::vector<std::string> hostile = {
      "<script>alert(1)</script>",
      "</style></script></title>",
      "\"><img src=x onerror=alert(1)>",
      "' onmouseover='alert(1)",
      "<!-- ",
      "]]>",
      "&lt;b&gt;&#60;",
      "\xE2\x80\xAE"
      "txet",
      "\xFF\xC0\xBC<\x80>",
      std::string("\0<b>\x1b[2J\r\n", 10),
  };
  for (const std::string& text : hostile) {
    const std::string page = Page(report::Report(Hostile(text), Secrets::Shown));
    EXPECT_EQ(tagsOf(page), tags) << text;
    EXPECT_EQ(text::ToValidUtf8(page), page);
    EXPECT_EQ(page.find("\xE2\x80\xAE"), std::string::npos);
    EXPECT_EQ(page.find_first_of(std::string_view("\0\x1b\r", 3)), std::string::npos);
  }
}

TEST(HtmlReport, HoldsAnyInstanceOfWhichNotEverythingIsThere) {
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Instance("VELKSG_SP_NumericSensor", {}),
                     Instance("VELKSG_SP_NumericSensor",
                              {{"SourceNode", "1"}, {"CurrentReading", "x"}, {"BaseUnits", 5}}),
                     Sensor(0, "Tiny", 1, 5, -2000000000), Sensor(0, "Huge", -1, 2, 2000000000),
                     Sensor(255, "Odd", 1, 77, 0), Sensor(255, "Odder", 1, 78, 0),
                     Instance("VELKSG_SP_ComputerSystem", {}),
                     Instance("VELKSG_SP_ComputerSystem", {{"SPClock", "now"}}),
                     Instance("VELKSG_ServProc_DialProtocolEndpoint2", {}),
                     Instance("VELKSG_ServProc_DialProtocolEndpoint2",
                              {{"SourceNode", Node(3)}, {"Supervisor", "perhaps"}}),
                     Instance("VELKSG_ServProc_IPProtocolEndpoint", {}),
                     Instance("VELKSG_ServProc_DialProtocolEndpoint4", {{"SourceNode", 7}})}},
      Secrets::Masked);
  const std::string page = Page(report);
  EXPECT_NO_THROW(ReadHtml(page));
  EXPECT_EQ(Count(page, "<tr class=\"sensor\""), 6U);
  EXPECT_EQ(Count(page, "<td class=\"number none\">no reading</td>"), 2U);
  std::vector<std::string> ids;
  for (const std::string& tag : ReadHtml(page).tags) {
    if (tag.starts_with("section class=\"processor\"")) {
      ids.push_back(tag.substr(26, tag.find(' ', 26) - 26));
    }
  }
  EXPECT_EQ(ids, (std::vector<std::string>{"id=\"sp-0\"", "id=\"sp-3\"", "id=\"sp-255\"",
                                           "id=\"no-sp\""}));
}

TEST(HtmlReport, TellsSensorsThatDidNotAnswerFromTheOthers) {
  const report::Report report({.facts = SomeFacts(),
                               .instances = {Sensor(1, "CPU <1>", 4150, 2, -2)},
                               .processors = {{1, report::Answer::Yes}},
                               .silentSensors = {{1, "CPU 2", report::SensorKind::Temperature},
                                                 {1, "+5v", report::SensorKind::Voltage}}},
                              Secrets::Masked);
  const std::string page = Page(report);
  EXPECT_EQ(Count(page, "<tr class=\"sensor\">"), 1U);
  EXPECT_EQ(Count(page, "<tr class=\"silent\">"), 2U);
  EXPECT_EQ(Between(page, "<tr class=\"sensor\">", "</tr>"),
            "<th scope=\"row\">CPU &lt;1&gt;</th><td class=\"number\" data-value=\"41.50\">41.50 "
            "<span class=\"unit\">°C</span></td><td class=\"chart\"><svg class=\"bar\" "
            "aria-hidden=\"true\"><rect x=\"0.0%\" width=\"83.0%\" height=\"100%\"/></svg></td>");
  EXPECT_EQ(Between(page, "<dt>Sensors</dt><dd>", "</dd>"), "3 <small>2 did not answer</small>");
}

TEST(HtmlReport, DrawsVoltagesByWhatTheirNamesState) {
  const std::string page =
      Page({Sensor(1, "Planar Voltage -12v", -1260, 5, -2), Sensor(1, "VRM 01", 148, 5, -2)});
  EXPECT_EQ(Between(page, "Planar Voltage -12v</th>", "</tr>"),
            "<td class=\"number\" data-value=\"-12.60\">-12.60 <span class=\"unit\">V</span></td>"
            "<td class=\"chart\" data-value=\"5.0000\"><div class=\"off\"><span>+5.0 %</span> "
            "<svg class=\"bar\" aria-hidden=\"true\">"
            "<rect x=\"50.0%\" width=\"50.0%\" height=\"100%\"/>"
            "<line x1=\"50.0%\" x2=\"50.0%\" y2=\"100%\"/></svg></div></td>");
  EXPECT_EQ(Between(page, "VRM 01</th>", "</tr>"),
            "<td class=\"number\" data-value=\"1.48\">1.48 <span class=\"unit\">V</span></td>"
            "<td class=\"chart none\">none stated</td>");
}

TEST(HtmlReport, ShowsStatesInWordsWhenThereAreLimits) {
  report::LimitRule rule;
  rule.upperCritical = report::Bound{40, "40"};
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Sensor(1, "CPU", 4150, 2, -2), Sensor(1, "Fan", 3, 65, 0)}},
      Secrets::Masked, report::Limits{rule});
  const std::string page = Page(report);
  EXPECT_EQ(Count(page, "data-sort=\"state\">State"), 2U);
  EXPECT_EQ(Between(page, "data-state=\"critical\"><th scope=\"row\">", "<"), "CPU");
  EXPECT_EQ(Between(page, "data-state=\"ok\"><th scope=\"row\">", "<"), "Fan");
  EXPECT_EQ(Between(page, "data-value=\"2\">", "</td>"),
            "<svg class=\"icon critical\" aria-hidden=\"true\"><use "
            "href=\"#critical\"/></svg>critical");
  EXPECT_EQ(Count(Page({Sensor(1, "CPU", 4150, 2, -2)}), "data-sort=\"state\">State"), 0U);
}

TEST(HtmlReport, SaysWhyASecretIsMasked) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("VELKSG_ServProc_DialProtocolEndpoint1",
               {{"SourceNode", Node(1)}, {"DialoutPassword", "hunter2"}, {"PPPPassword", ""}})};
  const std::string masked = Page(instances);
  EXPECT_EQ(Between(masked, "<dt>Password</dt><dd>", "</dd>"),
            "<span class=\"masked\">********</span> "
            "<small>masked; --show-secrets shows it</small>");
  EXPECT_EQ(Between(masked, "<b>Not set:</b> ", "</p>"), "PPP password");
  const std::string shown = Page(ReportOf(instances, SomeFacts(), Secrets::Shown));
  EXPECT_EQ(Between(shown, "<dt>Password</dt><dd>", "</dd>"), "hunter2");
  EXPECT_EQ(Count(shown, "masked;"), 0U);
}

TEST(HtmlReport, HeadsAProcessorWithWhatIsKnownOfIt) {
  report::CollectionFacts facts = SomeFacts();
  facts.hostTime = std::chrono::sys_days(std::chrono::year(2010) / 6 / 15) +
                   std::chrono::hours(15) + std::chrono::minutes(45) + std::chrono::seconds(27);
  const report::Report report(
      {.facts = facts,
       .instances =
           {Instance("VELKSG_SP_ComputerSystem",
                     {{"SourceNode", Node(1)}, {"Name", "SRV1:Node1"}, {"SPClock", SomeTime()}}),
            Instance("VELKSG_ServProc_IPProtocolEndpoint", {{"SourceNode", Node(1)},
                                                            {"HostIPAddress", "192.0.2.21"},
                                                            {"DHCPAssignedIPAddress", "0.0.0.0"}})},
       .processors = {{1, report::Answer::Yes}, {2, report::Answer::No}},
       .findings = {{report::Severity::Warning, report::FindingCode::SpSilent, 2, "SP 2 is mute"},
                    {report::Severity::Info, report::FindingCode::Limit, 2, "too warm"}}},
      Secrets::Masked);
  const std::string page = Page(report);
  const std::string first = Between(page, "id=\"sp-1\"", "<details>");
  EXPECT_EQ(Between(first, "<h2>", "</h2>"), "Service processor 1 <small>SRV1:Node1</small>");
  EXPECT_EQ(Between(first, "<dt>Clock</dt><dd>", "</dd>"),
            "2010-06-15 13:45:30 UTC-02:00 <small>3 s ahead of the host's</small>");
  EXPECT_EQ(Between(first, "<dt>Address</dt><dd>", "</dd>"),
            "<span class=\"item\">192.0.2.21</span> ");
  const std::string second = Between(page, "id=\"sp-2\"", "</section>");
  EXPECT_NE(second.find("did not answer"), std::string::npos);
  EXPECT_EQ(Between(second, "<dt>Did not answer</dt><dd>", "</dd>"),
            "<span class=\"item\">SP 2 is mute</span> ");
  EXPECT_EQ(Between(page, "<dt>Service processors</dt><dd>", "</dd>"),
            "2 <small>1 answered</small>");
  EXPECT_EQ(Count(page, "<li data-find>"), 2U);
}

TEST(HtmlReport, TellsWhyAProcessorWasNotAsked) {
  const report::Report report(
      {.facts = SomeFacts(),
       .processors = {{1, report::Answer::NotAsked}},
       .findings = {{report::Severity::Warning, report::FindingCode::Held, 1, "it is held"},
                    {report::Severity::Warning, report::FindingCode::MachineUnknown, 1, "unknown"},
                    {report::Severity::Warning, report::FindingCode::Partial, 1, "in part"}}},
      Secrets::Masked);
  const std::string page = Page(report);
  const std::string header = Between(page, "id=\"sp-1\"", "</section>");
  EXPECT_EQ(Between(header, "<dt>State</dt><dd>", "</dd>"),
            "<svg class=\"icon info\" aria-hidden=\"true\"><use href=\"#info\"/></svg>not asked");
  EXPECT_EQ(Between(header, "<dt>Not asked</dt><dd>", "</dd>"),
            "<span class=\"item\">it is held</span> <span class=\"item\">unknown</span> ");
  EXPECT_EQ(Between(header, "<dt>Did not answer</dt><dd>", "</dd>"),
            "<span class=\"item\">in part</span> ");
  EXPECT_EQ(Between(page, "<dt>Service processors</dt><dd>", "</dd>"),
            "1 <small>0 answered, 1 not asked</small>");
}

TEST(HtmlReport, LeadsToNoProcessorThatHasNoSection) {
  const report::Report report(
      {.facts = SomeFacts(),
       .processors = {{1, report::Answer::Yes}},
       .findings = {{report::Severity::Critical, report::FindingCode::NoSp, 2, "there is no SP 2"},
                    {report::Severity::Info, report::FindingCode::Partial, 1, "in part"}}},
      Secrets::Masked);
  const std::string page = Page(report);
  EXPECT_EQ(Count(page, "there is no SP 2</span></li>"), 1U);
  EXPECT_EQ(Count(page, "href=\"#sp-1\">see SP 1"), 1U);
  EXPECT_EQ(Count(page, "sp-2"), 0U);
}

TEST(HtmlReport, ComparesNoReadingsOfSeveralUnits) {
  const std::string page =
      Page({Sensor(1, "A", 30, 19, 0), Sensor(1, "B", 50, 65, 0), Sensor(1, "C", 3000, 19, 0),
            Sensor(1, "D", 2350, 2, -2), Sensor(1, "E", 4200, 2, -2)});
  EXPECT_EQ(Between(page, "<h4>Fans <small>", "</small>"), "3, several units");
  EXPECT_EQ(Between(page, "<h4>Temperatures <small>", "</small>"), "2, 23.50 to 42.00 °C");
  EXPECT_EQ(Between(page, "5 sensors</td>", "</tr>"),
            "<td class=\"number\">23.50 to 42.00 °C</td><td class=\"number\">several units</td>");
}

// Authorities are the properties that are enabled or disabled.
TEST(HtmlReport, HasAColumnForEachAuthorityOfTheCatalogue) {
  const std::string name = "VELKSG_ServProc_DialProtocolEndpoint2";
  std::string expected;
  for (const cim::SchemaProperty& property : cim::FindSchemaClass(name)->properties) {
    if (property.description.ends_with(": Enabled or Disabled.")) {
      expected += "<th scope=\"col\" class=\"turned\"><span>" + std::string(property.label) +
                  "</span></th>";
    }
  }
  for (const char* const further : {"LoginFlags", "DialBackNumber", "LastLogin"}) {
    const auto* const property = cim::FindSchemaProperty(*cim::FindSchemaClass(name), further);
    expected += "<th scope=\"col\">" + std::string(property->label) + "</th>";
  }
  EXPECT_EQ(Between(Page({Instance(name, {})}), "<th scope=\"col\">Login</th>", "</tr>"), expected);
}

TEST(HtmlReport, HasAMatrixOfLoginsAlone) {
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    const bool isLogin = schema.name == "VELKSG_ServProc_DialProtocolEndpoint2";
    EXPECT_EQ(Count(Page({Instance(std::string(schema.name), {})}), "class=\"matrix\""),
              isLogin ? 1U : 0U)
        << schema.name;
  }
}

TEST(HtmlReport, ShowsWhatALoginPermits) {
  const std::string page =
      Page({Instance("VELKSG_ServProc_DialProtocolEndpoint2", {{"SourceNode", Node(1)},
                                                               {"Instance", "4"},
                                                               {"LoginID", "AUDIT"},
                                                               {"DenyAlways", "Disabled"},
                                                               {"ReadOnly", "Enabled"}})});
  const std::string row = Between(page, "<tr data-find><th scope=\"row\">", "</tr>");
  EXPECT_EQ(Between(row, "", "</th>"), "AUDIT <small>4</small>");
  EXPECT_EQ(Count(row, "<td class=\"authority\">"), 10U);
  EXPECT_EQ(Count(row, ">Enabled</span>"), 1U);
  EXPECT_EQ(Count(row, ">Disabled</span>"), 1U);
}

TEST(HtmlReport, HasEachPropertyByItsCimName) {
  const std::string page = Page(Everything("x"));
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    EXPECT_EQ(Count(page, ">" + std::string(schema.name) + "</p>"), 1U) << schema.name;
    for (const cim::SchemaProperty& property : schema.properties) {
      EXPECT_GE(Count(page, ">" + std::string(property.name) + "</th>"), 1U) << property.name;
    }
  }
}

}  // namespace
}  // namespace strake::tests
