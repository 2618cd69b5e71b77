#include "report/HtmlProcessor.h"

#include "report/ClockOffset.h"
#include "report/HtmlCards.h"
#include "report/HtmlParts.h"
#include "report/HtmlSensors.h"
#include "report/ValueForPeople.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace strake::report {
namespace {

// In the order of QueryGroup.
constexpr std::array<std::string_view, cim::kQueryGroups.size()> kHeadings{
    "Network", "Dial-out, logins and serial ports", "Sensors", "Computer system"};

constexpr std::string_view kSilent = "Did not answer";
constexpr std::string_view kNotAsked = "Not asked";

// The first computer system is the one that the heading tells of.
const cim::StoredInstance* SystemOf(const ProcessorPart& processor) {
  const auto found =
      std::ranges::find(processor.instances, cim::QueryGroup::ComputerSystem,
                        [](const cim::StoredInstance* one) { return one->schema->group; });
  return found == processor.instances.end() ? nullptr : *found;
}

Icon IconOf(Answer answer) {
  switch (answer) {
    case Answer::NotAsked:
      return Icon::Info;
    case Answer::No:
      return Icon::Warning;
    case Answer::Yes:
      break;
  }
  return Icon::Yes;
}

// Texts of a property of all instances that have it, without what stands for
// nothing.
std::vector<std::string> ValuesOf(const ProcessorPart& processor, std::string_view property) {
  std::vector<std::string> values;
  for (const cim::StoredInstance* const instance : processor.instances) {
    const cim::Value* const value = cim::FindValue(*instance, property);
    const std::string text = value == nullptr ? "" : ValueForPeople(*value);
    if (!text.empty() && text != "0.0.0.0") {
      values.push_back(text);
    }
  }
  return values;
}

// What the heading says a finding tells; empty: it is none of the heading's.
std::string_view TellsWhat(FindingCode code) {
  switch (code) {
    case FindingCode::NoSp:
    case FindingCode::SpSilent:
    case FindingCode::NotCommunicating:
    case FindingCode::ListLength:
    case FindingCode::CommandUnanswered:
    case FindingCode::SensorUnanswered:
    case FindingCode::Partial:
      return kSilent;
    case FindingCode::Held:
    case FindingCode::MachineUnknown:
      return kNotAsked;
    case FindingCode::Limit:
    case FindingCode::EqualKeys:
      break;
  }
  return "";
}

void AddAddresses(HtmlOut& out, const ProcessorPart& processor) {
  const std::vector<std::string> configured = ValuesOf(processor, "HostIPAddress");
  const std::vector<std::string> assigned = ValuesOf(processor, "DHCPAssignedIPAddress");
  if (configured.empty() && assigned.empty()) {
    return;
  }
  out.Add("<div><dt>Address</dt><dd>"_html);
  for (const std::string& address : configured) {
    out.Add("<span class=\"item\">"_html, address, "</span> "_html);
  }
  for (const std::string& address : assigned) {
    out.Add("<span class=\"item\">"_html, address, " <small>by DHCP</small></span> "_html);
  }
  out.Add("</dd></div>"_html);
}

void AddFindingsThatTell(HtmlOut& out, std::string_view what, const ProcessorPart& processor) {
  bool isFirst = true;
  for (const Finding* const finding : processor.findings) {
    if (TellsWhat(finding->code) == what) {
      if (isFirst) {
        out.Add("<div><dt>"_html, what, "</dt><dd>"_html);
        isFirst = false;
      }
      out.Add("<span class=\"item\">"_html, finding->text, "</span> "_html);
    }
  }
  if (!isFirst) {
    out.Add("</dd></div>"_html);
  }
}

void AddHeader(HtmlOut& out, const Report& report, const ProcessorPart& processor) {
  out.Add("<header><h2>"_html);
  AddProcessorName(out, processor);
  const cim::StoredInstance* const system = SystemOf(processor);
  const cim::Value* const name = system == nullptr ? nullptr : cim::FindValue(*system, "Name");
  if (name != nullptr) {
    out.Add(" <small>"_html, cim::ToText(*name), "</small>"_html);
  }
  out.Add("</h2><dl>"_html);
  if (processor.number) {
    out.Add("<div><dt>State</dt><dd>"_html);
    AddAnswered(out, processor);
    out.Add("</dd></div>"_html);
  }
  if (system != nullptr && cim::FindValue(*system, "SPClock") != nullptr) {
    out.Add("<div><dt>Clock</dt><dd>"_html, ValueForPeople(*cim::FindValue(*system, "SPClock")),
            " <small>"_html);
    AddClock(out, processor, report.Facts().hostTime);
    out.Add("</small></dd></div>"_html);
  }
  AddAddresses(out, processor);
  AddFindingsThatTell(out, kSilent, processor);
  AddFindingsThatTell(out, kNotAsked, processor);
  out.Add("</dl>"_html);
  if (system != nullptr) {
    AddCimProperties(out, {&system, 1});
  }
  out.Add("</header>\n"_html);
}

// The instances of one query group, the heading's computer system left out.
void AddGroup(HtmlOut& out, const ProcessorPart& processor, cim::QueryGroup group) {
  const cim::StoredInstance* const system = SystemOf(processor);
  std::vector<const cim::StoredInstance*> cards;
  std::vector<const cim::StoredInstance*> logins;
  for (const cim::StoredInstance* const instance : processor.instances) {
    if (instance->schema->group == group && instance != system) {
      (IsLogin(*instance) ? logins : cards).push_back(instance);
    }
  }
  if (cards.empty() && logins.empty()) {
    return;
  }
  out.Add("<section data-group><h3>"_html, kHeadings.at(static_cast<std::size_t>(group)),
          "</h3>\n"_html);
  if (!logins.empty()) {
    AddLogins(out, logins);
  }
  if (!cards.empty()) {
    out.Add("<div class=\"cards\">\n"_html);
    for (const cim::StoredInstance* const instance : cards) {
      AddCard(out, *instance);
    }
    out.Add("</div>"_html);
  }
  out.Add("</section>\n"_html);
}

}  // namespace

void AddProcessorName(HtmlOut& out, const ProcessorPart& processor) {
  if (processor.number) {
    out.Add("Service processor "_html, *processor.number);
  } else {
    out.Add("No service processor"_html);
  }
}

void AddProcessorAnchor(HtmlOut& out, const ProcessorPart& processor) {
  if (processor.number) {
    out.Add("sp-"_html, *processor.number);
  } else {
    out.Add("no-sp"_html);
  }
}

void AddAnswered(HtmlOut& out, const ProcessorPart& processor) {
  if (processor.number) {
    AddIcon(out, IconOf(processor.answer));
    out.Add(AnswerText(processor.answer));
  }
}

void AddClock(HtmlOut& out, const ProcessorPart& processor, std::chrono::sys_seconds hostTime) {
  const cim::StoredInstance* const system = SystemOf(processor);
  const auto* const clock =
      system == nullptr ? nullptr : cim::FindValueOf<cim::DateTime>(*system, "SPClock");
  if (clock == nullptr) {
    return;
  }
  const std::optional<std::chrono::sys_seconds> moment = MomentOf(clock->Text());
  if (!moment) {
    out.Add("no moment of any calendar"_html);
  } else if (*moment == hostTime) {
    out.Add("as the host's clock"_html);
  } else {
    out.Add(OffsetForPeople(*moment - hostTime),
            *moment < hostTime ? " the host's"_html : " of the host's"_html);
  }
}

void AddProcessor(HtmlOut& out, const Report& report, const ChartScales& scales,
                  const ProcessorPart& processor) {
  out.Add("<section class=\"processor\" id=\""_html);
  AddProcessorAnchor(out, processor);
  out.Add("\" data-group>\n"_html);
  AddHeader(out, report, processor);
  AddSensors(out, processor, scales, report.HasStates());
  for (const cim::QueryGroup group : cim::kQueryGroups) {
    AddGroup(out, processor, group);
  }
  out.Add("</section>\n"_html);
}

}  // namespace strake::report
