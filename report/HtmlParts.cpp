#include "report/HtmlParts.h"

#include "report/InstanceText.h"
#include "report/Report.h"

namespace strake::report {
namespace {

void AddPlainOrMasked(HtmlOut& out, const cim::SchemaProperty& property, std::string_view value) {
  if (property.role == cim::Role::Secret && value == kSecretMask) {
    out.Add("<span class=\"masked\">"_html, value,
            "</span> <small>masked; --show-secrets shows it</small>"_html);
  } else {
    out.Add(value);
  }
}

void AddCell(HtmlOut& out, const cim::SchemaProperty& property, const cim::Value* value) {
  out.Add("<td>"_html);
  if (value == nullptr) {
    AddUnseen(out, "not set");
  } else {
    AddPlainOrMasked(out, property, cim::ToText(*value));
  }
  out.Add("</td>"_html);
}

void AddOneInstance(HtmlOut& out, const cim::StoredInstance& instance) {
  out.Add("<table class=\"cim\"><tbody>"_html);
  for (const cim::StoredProperty& property : instance.properties) {
    out.Add("<tr><th scope=\"row\">"_html, property.schema->name, "</th>"_html);
    AddCell(out, *property.schema, &property.value);
    out.Add("</tr>"_html);
  }
  out.Add("</tbody></table>"_html);
}

void AddSeveralInstances(HtmlOut& out, std::span<const cim::StoredInstance* const> instances) {
  const cim::SchemaClass& schema = *instances.front()->schema;
  AddWideRegion(out, "CIM properties: ", schema.title, SourceNode(*instances.front()));
  out.Add("<table class=\"cim\"><thead><tr>"_html);
  for (const cim::SchemaProperty& property : schema.properties) {
    out.Add("<th scope=\"col\">"_html, property.name, "</th>"_html);
  }
  out.Add("</tr></thead><tbody>"_html);
  for (const cim::StoredInstance* const instance : instances) {
    out.Add("<tr>"_html);
    for (const cim::SchemaProperty& property : schema.properties) {
      AddCell(out, property, cim::FindValue(*instance, property.name));
    }
    out.Add("</tr>\n"_html);
  }
  out.Add("</tbody></table></div>"_html);
}

}  // namespace

void AddIcon(HtmlOut& out, Icon icon) {
  switch (icon) {
    case Icon::Yes:
      out.Add("<svg class=\"icon yes\" aria-hidden=\"true\"><use href=\"#yes\"/></svg>"_html);
      return;
    case Icon::No:
      out.Add("<svg class=\"icon no\" aria-hidden=\"true\"><use href=\"#no\"/></svg>"_html);
      return;
    case Icon::Info:
      out.Add("<svg class=\"icon info\" aria-hidden=\"true\"><use href=\"#info\"/></svg>"_html);
      return;
    case Icon::Warning:
      out.Add(
          "<svg class=\"icon warning\" aria-hidden=\"true\"><use href=\"#warning\"/></svg>"_html);
      return;
    case Icon::Critical:
      out.Add(
          "<svg class=\"icon critical\" aria-hidden=\"true\"><use href=\"#critical\"/></svg>"_html);
      return;
  }
}

void AddState(HtmlOut& out, SensorState state) {
  AddIcon(out, state == SensorState::Critical  ? Icon::Critical
               : state == SensorState::Warning ? Icon::Warning
                                               : Icon::Yes);
  // Most are fine: there the shape says it.
  if (state == SensorState::Ok) {
    AddUnseen(out, StateName(state));
  } else {
    out.Add(StateName(state));
  }
}

void AddValue(HtmlOut& out, const cim::SchemaProperty& property, std::string_view value) {
  if (value == "Enabled" || value == "Disabled") {
    AddIcon(out, value == "Enabled" ? Icon::Yes : Icon::No);
  }
  AddPlainOrMasked(out, property, value);
}

void AddUnseen(HtmlOut& out, std::string_view said) {
  out.Add("<span class=\"unseen\">"_html, said, "</span>"_html);
}

void AddWideRegion(HtmlOut& out, std::string_view what, std::string_view whose,
                   std::optional<int> sp) {
  out.Add("<div class=\"scroll\" role=\"region\" tabindex=\"0\" aria-label=\""_html, what, whose);
  if (sp) {
    out.Add(", service processor "_html, *sp);
  }
  out.Add("\">"_html);
}

void AddCimProperties(HtmlOut& out, std::span<const cim::StoredInstance* const> instances) {
  out.Add("<details><summary>CIM properties</summary><p class=\"class\">"_html,
          instances.front()->schema->name, "</p>"_html);
  if (instances.size() == 1) {
    AddOneInstance(out, *instances.front());
  } else {
    AddSeveralInstances(out, instances);
  }
  out.Add("</details>\n"_html);
}

void AddCount(HtmlOut& out, std::size_t count, std::string_view one, std::string_view many) {
  out.Add(count, " "_html, count == 1 ? one : many);
}

}  // namespace strake::report
