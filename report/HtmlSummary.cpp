#include "report/HtmlSummary.h"

#include "report/HtmlParts.h"
#include "report/HtmlProcessor.h"
#include "report/SensorTally.h"
#include "report/Timestamp.h"

#include <algorithm>
#include <array>
#include <optional>

namespace strake::report {
namespace {

using Parts = std::span<const ProcessorPart>;

// The kinds that every processor's line tells of.
constexpr std::array kShownKinds{SensorKind::Temperature, SensorKind::Fan};

// Whether the page has a section of it.
bool IsThere(Parts processors, int number) {
  return std::ranges::find(processors, std::optional(number), &ProcessorPart::number) !=
         processors.end();
}

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

void AddFacts(HtmlOut& out, const Report& report, Parts processors) {
  const std::size_t numbered = CountNumbered(processors);
  const std::size_t notAsked = CountNumbered(processors, Answer::NotAsked);
  std::size_t silent = 0;
  for (const ProcessorPart& processor : processors) {
    silent += TallyOf(processor.sensors).silent;
  }
  out.Add("<dl class=\"facts\"><div><dt>Service processors</dt><dd>"_html, numbered);
  if (numbered != 0) {
    out.Add(" <small>"_html, CountNumbered(processors, Answer::Yes), " answered"_html);
    if (notAsked != 0) {
      out.Add(", "_html, notAsked, " not asked"_html);
    }
    out.Add("</small>"_html);
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

void AddFinding(HtmlOut& out, const Finding& finding, Parts processors) {
  out.Add("<li data-find><span class=\"severity "_html, SeverityName(finding.severity), "\">"_html);
  AddIcon(out, IconOf(finding.severity));
  out.Add(SeverityName(finding.severity), "</span> <span>"_html, finding.text, "</span>"_html);
  if (finding.sp && IsThere(processors, *finding.sp)) {
    out.Add(" <a href=\"#sp-"_html, *finding.sp, "\">see SP "_html, *finding.sp, "</a>"_html);
  }
  out.Add("</li>\n"_html);
}

void AddFindings(HtmlOut& out, const Report& report, Parts processors) {
  out.Add("<div data-group><h3>Findings</h3>"_html);
  if (report.Findings().empty()) {
    out.Add("<p>None.</p>"_html);
  } else {
    out.Add("<ul class=\"findings\">\n"_html);
    for (const Finding& finding : report.Findings()) {
      AddFinding(out, finding, processors);
    }
    out.Add("</ul>"_html);
  }
  out.Add("</div>\n"_html);
}

void AddProcessorLine(HtmlOut& out, const ProcessorPart& processor,
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
  if (const std::size_t silent = TallyOf(processor.sensors).silent; silent != 0) {
    out.Add(", "_html, silent, " silent"_html);
  }
  out.Add("</td>"_html);
  for (const SensorKind kind : kShownKinds) {
    out.Add("<td class=\"number\">"_html, RangeText(TallyOf(processor.SensorsOf(kind))),
            "</td>"_html);
  }
  out.Add("</tr>\n"_html);
}

void AddProcessors(HtmlOut& out, const Report& report, Parts processors) {
  AddWideRegion(out, "Service processors", "", std::nullopt);
  out.Add(
      "<table class=\"processors\"><thead><tr><th scope=\"col\">Service processor</th>"
      "<th scope=\"col\">State</th><th scope=\"col\">Clock</th><th scope=\"col\">Sensors</th>"_html);
  for (const SensorKind kind : kShownKinds) {
    out.Add("<th scope=\"col\" class=\"number\">"_html, KindHeading(kind), "</th>"_html);
  }
  out.Add("</tr></thead><tbody>\n"_html);
  for (const ProcessorPart& processor : processors) {
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

void AddSummary(HtmlOut& out, const Report& report, Parts processors) {
  out.Add("<section class=\"summary\" data-group><h2>Summary</h2>\n"_html);
  AddFacts(out, report, processors);
  AddFindings(out, report, processors);
  if (report.Instances().empty()) {
    out.Add("<p>No instances were collected.</p>\n"_html);
  }
  if (!processors.empty()) {
    AddProcessors(out, report, processors);
  }
  out.Add("</section>\n"_html);
}

}  // namespace strake::report
