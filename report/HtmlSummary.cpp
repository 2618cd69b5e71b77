#include "report/HtmlSummary.h"

#include "report/HtmlParts.h"
#include "report/HtmlProcessor.h"
#include "report/HtmlSensors.h"
#include "report/Timestamp.h"

#include <algorithm>
#include <array>

namespace strake::report {
namespace {

// The kinds that every processor's line tells of.
constexpr std::array kShownKinds{SensorKind::Temperature, SensorKind::Fan};

Icon IconOf(Severity severity) {
  switch (severity) {
    case Severity::Info:
      return Icon::Info;
    case Severity::Warning:
      return Icon::Warning;
    case Severity::Critical:
      return Icon::Critical;
  }
  return Icon::Info;
}

// "2024-03-18 09:41:07 UTC".
std::string MomentForPeople(std::chrono::sys_seconds moment) {
  std::string text = Timestamp(moment);
  std::ranges::replace(text, 'T', ' ');
  text.pop_back();
  return text + " UTC";
}

void AddFacts(HtmlOut& out, const Report& report, const PageView& page) {
  const auto numbered = std::ranges::count_if(
      page.processors, [](const ProcessorView& one) { return one.number.has_value(); });
  const auto answered =
      std::ranges::count(page.processors, std::optional<bool>(true), &ProcessorView::answered);
  const auto silent = std::ranges::count(report.Sensors(), nullptr, &Sensor::instance);
  out.Add("<dl class=\"facts\"><div><dt>Service processors</dt><dd>"_html, numbered);
  if (numbered != 0) {
    out.Add(" <small>"_html, answered, " answered</small>"_html);
  }
  out.Add("</dd></div><div><dt>Sensors</dt><dd>"_html, report.Sensors().size());
  if (silent != 0) {
    out.Add(" <small>"_html, silent, " did not answer</small>"_html);
  }
  out.Add("</dd></div><div><dt>Findings</dt><dd>"_html, report.Findings().size(),
          "</dd></div><div><dt>Instances</dt><dd>"_html, report.Instances().size(),
          " <small>"_html);
  AddCount(out, report.Facts().queries, "query", "queries");
  out.Add("</small></dd></div></dl>\n"_html);
}

void AddFinding(HtmlOut& out, const Finding& finding) {
  out.Add("<li data-find><span class=\"severity "_html, SeverityName(finding.severity), "\">"_html);
  AddIcon(out, IconOf(finding.severity));
  out.Add(SeverityName(finding.severity), "</span> <span>"_html, finding.text, "</span>"_html);
  if (finding.sp) {
    out.Add(" <a href=\"#sp-"_html, *finding.sp, "\">see SP "_html, *finding.sp, "</a>"_html);
  }
  out.Add("</li>\n"_html);
}

void AddFindings(HtmlOut& out, const Report& report) {
  out.Add("<div data-group><h3>Findings</h3>"_html);
  if (report.Findings().empty()) {
    out.Add("<p>None.</p>"_html);
  } else {
    out.Add("<ul class=\"findings\">\n"_html);
    for (const Finding& finding : report.Findings()) {
      AddFinding(out, finding);
    }
    out.Add("</ul>"_html);
  }
  out.Add("</div>\n"_html);
}

void AddProcessorLine(HtmlOut& out, const ProcessorView& processor,
                      std::chrono::sys_seconds hostTime) {
  out.Add("<tr><th scope=\"row\"><a href=\"#"_html);
  AddProcessorAnchor(out, processor);
  out.Add("\">"_html);
  AddProcessorName(out, processor);
  out.Add("</a></th><td>"_html);
  AddAnswered(out, processor);
  out.Add("</td><td>"_html);
  AddClock(out, processor, hostTime);
  out.Add("</td><td>"_html);
  AddCount(out, processor.sensors.size(), "sensor", "sensors");
  if (const std::size_t silent = CountSilent(processor); silent != 0) {
    out.Add(", "_html, silent, " silent"_html);
  }
  out.Add("</td>"_html);
  for (const SensorKind kind : kShownKinds) {
    out.Add("<td class=\"number\">"_html, LowestAndHighest(processor, kind), "</td>"_html);
  }
  out.Add("</tr>\n"_html);
}

void AddProcessors(HtmlOut& out, const Report& report, const PageView& page) {
  AddWideRegion(out, "Service processors", "", std::nullopt);
  out.Add(
      "<table class=\"processors\"><thead><tr><th scope=\"col\">Service processor</th>"
      "<th scope=\"col\">State</th><th scope=\"col\">Clock</th><th scope=\"col\">Sensors</th>"_html);
  for (const SensorKind kind : kShownKinds) {
    out.Add("<th scope=\"col\" class=\"number\">"_html, KindHeading(kind), "</th>"_html);
  }
  out.Add("</tr></thead><tbody>\n"_html);
  for (const ProcessorView& processor : page.processors) {
    AddProcessorLine(out, processor, report.Facts().hostTime);
  }
  out.Add("</tbody></table></div>\n"_html);
}

}  // namespace

void AddPageHeader(HtmlOut& out, const CollectionFacts& facts) {
  out.Add("<header class=\"page\"><h1>"_html, facts.server.name, "</h1>"_html);
  if (!facts.server.description.empty()) {
    out.Add("<p class=\"description\">"_html, facts.server.description, "</p>"_html);
  }
  out.Add("<p>Collected <time datetime=\""_html, Timestamp(facts.collectedAt), "\">"_html,
          MomentForPeople(facts.collectedAt), "</time> <span class=\"item\">"_html,
          facts.server.kind, "</span></p></header>\n"_html);
}

void AddSummary(HtmlOut& out, const Report& report, const PageView& page) {
  out.Add("<section class=\"summary\" data-group><h2>Summary</h2>\n"_html);
  AddFacts(out, report, page);
  AddFindings(out, report);
  if (report.Instances().empty()) {
    out.Add("<p>No instances were collected.</p>\n"_html);
  }
  if (!page.processors.empty()) {
    AddProcessors(out, report, page);
  }
  out.Add("</section>\n"_html);
}

}  // namespace strake::report
