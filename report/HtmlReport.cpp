#include "report/HtmlReport.h"

#include "report/HtmlParts.h"
#include "report/HtmlProcessor.h"
#include "report/HtmlSensors.h"
#include "report/HtmlSummary.h"
#include "report/PageAssets.h"

namespace strake::report {
namespace {

// Shapes that the page refers to, by their names.
constexpr Markup kShapes =
    "<svg class=\"shapes\" aria-hidden=\"true\">"
    "<symbol id=\"yes\" viewBox=\"0 0 16 16\"><path d=\"M3 8.5 6.5 12 13 4.5\"/></symbol>"
    "<symbol id=\"no\" viewBox=\"0 0 16 16\"><path d=\"M5 8h6\"/></symbol>"
    "<symbol id=\"info\" viewBox=\"0 0 16 16\"><circle cx=\"8\" cy=\"8\" r=\"6.5\"/>"
    "<path d=\"M8 7.5v4M8 4.5v.5\"/></symbol>"
    "<symbol id=\"warning\" viewBox=\"0 0 16 16\"><path d=\"M8 1.8 15 14H1z\"/>"
    "<path d=\"M8 6v4M8 11.7v.3\"/></symbol>"
    "<symbol id=\"critical\" viewBox=\"0 0 16 16\">"
    "<path d=\"M5.2 1.5h5.6l3.7 3.7v5.6l-3.7 3.7H5.2L1.5 10.8V5.2z\"/>"
    "<path d=\"M5.5 5.5l5 5M10.5 5.5l-5 5\"/></symbol>"
    "</svg>\n"_html;

void AddHead(HtmlOut& out, const std::string& serverName) {
  const PageAsset style = PageStyle();
  out.Add(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src '"_html,
      style.hash, "'; script-src '"_html, PageScript().hash,
      "'; base-uri 'none'; form-action 'none'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n"
      "<meta name=\"referrer\" content=\"no-referrer\">\n<title>"_html,
      serverName, " - Strake report</title>\n<style>"_html);
  out.AddAsset(style.text);
  out.Add("</style>\n</head>\n<body>\n"_html, kShapes);
}

// It has no use without the script, which shows it.
void AddTools(HtmlOut& out) {
  out.Add(
      "<form class=\"tools\" id=\"tools\" role=\"search\" hidden>"
      "<label for=\"search\">Search</label>"
      "<input type=\"search\" id=\"search\" autocomplete=\"off\" spellcheck=\"false\">"
      "<output id=\"found\" for=\"search\"></output>"
      "<button type=\"button\" id=\"names\" aria-pressed=\"false\">CIM properties</button>"
      "</form>\n"_html);
}

void AddFoot(HtmlOut& out, const CollectionFacts& facts) {
  out.Add("</main>\n<footer><p>Made by Strake "_html, facts.version,
          ". This page is one file and asks for no other.</p></footer>\n<script>"_html);
  out.AddAsset(PageScript().text);
  out.Add("</script>\n</body>\n</html>\n"_html);
}

}  // namespace

void WriteHtml(const Report& report, const Layout& /*layout*/, const Sink& sink) {
  const std::vector<ProcessorPart> processors = PartsOf(report, SensorOrder::AsCollected);
  const ChartScales scales(report.Sensors());
  HtmlOut out(sink);
  AddHead(out, report.Facts().server.name);
  AddPageHeader(out, report.Facts());
  AddTools(out);
  out.Add("<main>\n"_html);
  AddSummary(out, report, processors);
  for (const ProcessorPart& processor : processors) {
    AddProcessor(out, report, scales, processor);
  }
  AddFoot(out, report.Facts());
  out.Flush();
}

}  // namespace strake::report
