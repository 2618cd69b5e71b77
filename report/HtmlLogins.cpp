#include "report/HtmlCards.h"
#include "report/HtmlParts.h"
#include "report/InstanceText.h"
#include "report/ValueForPeople.h"

#include <array>
#include <string>
#include <string_view>

namespace strake::report {
namespace {

constexpr std::string_view kLoginClass = "VELKSG_ServProc_DialProtocolEndpoint2";

// What a login permits or is denied, and what else the matrix has of it.
constexpr std::array<std::string_view, 10> kAuthorities{"DenyAlways",
                                                        "Supervisor",
                                                        "ReadOnly",
                                                        "NetworkingAndSecurity",
                                                        "RemoteConsoleAccess",
                                                        "RemoteConsoleVirtualMediaAccess",
                                                        "RemoteServerPowerRestartAccess",
                                                        "BasicConfiguration",
                                                        "AbilityToClearEventLogs",
                                                        "AdvancedConfiguration"};
constexpr std::array<std::string_view, 3> kFurther{"LoginFlags", "DialBackNumber", "LastLogin"};

std::string_view LabelOf(const cim::SchemaClass& schema, std::string_view name) {
  const cim::SchemaProperty* const property = cim::FindSchemaProperty(schema, name);
  return property == nullptr ? name : property->label;
}

std::string ValueOf(const cim::StoredInstance& login, std::string_view property) {
  const cim::Value* const value = cim::FindValue(login, property);
  return value == nullptr ? "" : ValueForPeople(*value);
}

void AddHead(HtmlOut& out, const cim::SchemaClass& schema) {
  out.Add("<thead><tr><th scope=\"col\">Login</th>"_html);
  for (const std::string_view name : kAuthorities) {
    out.Add("<th scope=\"col\" class=\"turned\"><span>"_html, LabelOf(schema, name),
            "</span></th>"_html);
  }
  for (const std::string_view name : kFurther) {
    out.Add("<th scope=\"col\">"_html, LabelOf(schema, name), "</th>"_html);
  }
  out.Add("</tr></thead>"_html);
}

void AddAuthority(HtmlOut& out, const std::string& value) {
  out.Add("<td class=\"authority\">"_html);
  if (value == "Enabled") {
    AddIcon(out, Icon::Yes);
    AddUnseen(out, value);
  } else if (value == "Disabled") {
    AddIcon(out, Icon::No);
    AddUnseen(out, value);
  } else if (value.empty()) {
    AddUnseen(out, "not set");
  } else {
    out.Add(value);
  }
  out.Add("</td>"_html);
}

void AddLogin(HtmlOut& out, const cim::StoredInstance& login) {
  out.Add("<tr data-find><th scope=\"row\">"_html, ValueOf(login, "LoginID"), " <small>"_html,
          ValueOf(login, login.schema->number), "</small></th>"_html);
  for (const std::string_view name : kAuthorities) {
    AddAuthority(out, ValueOf(login, name));
  }
  for (const std::string_view name : kFurther) {
    const std::string value = ValueOf(login, name);
    out.Add("<td>"_html);
    if (value.empty()) {
      AddUnseen(out, "not set");
    } else {
      out.Add(value);
    }
    out.Add("</td>"_html);
  }
  out.Add("</tr>\n"_html);
}

}  // namespace

bool IsLogin(const cim::StoredInstance& instance) { return instance.schema->name == kLoginClass; }

void AddLogins(HtmlOut& out, Instances logins) {
  out.Add("<div class=\"logins\" data-group><h4>Logins and what they permit</h4>"_html);
  AddWideRegion(out, "Logins", "", SourceNode(*logins.front()));
  out.Add("<table class=\"matrix\">"_html);
  AddHead(out, *logins.front()->schema);
  out.Add("<tbody>\n"_html);
  for (const cim::StoredInstance* const login : logins) {
    AddLogin(out, *login);
  }
  out.Add("</tbody></table></div>"_html);
  AddCimProperties(out, logins);
  out.Add("</div>\n"_html);
}

}  // namespace strake::report
