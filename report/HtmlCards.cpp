#include "report/HtmlCards.h"

#include "report/HtmlParts.h"
#include "report/InstanceText.h"

#include <array>
#include <string>
#include <vector>

namespace strake::report {
namespace {

// What service processors say where nothing is configured.
bool IsUnset(const Row& row) { return row.value.empty() || row.value == "0.0.0.0"; }

// A key tells instances apart; titles, headings and the CIM properties have it.
bool IsForPeople(const Row& row) { return row.property->schema->role != cim::Role::Key; }

void AddUnset(HtmlOut& out, const std::vector<Row>& rows) {
  bool isFirst = true;
  for (const Row& row : rows) {
    if (IsForPeople(row) && IsUnset(row)) {
      out.Add(isFirst ? "<p class=\"unset\"><b>Not set:</b> "_html : ", "_html, row.label);
      isFirst = false;
    }
  }
  if (!isFirst) {
    out.Add("</p>"_html);
  }
}

}  // namespace

void AddCard(HtmlOut& out, const cim::StoredInstance& instance) {
  out.Add("<article class=\"card\" data-find><h4>"_html, NumberedTitle(instance), "</h4>"_html);
  const std::vector<Row> rows = InstanceRows(instance);
  bool isOpen = false;
  for (const Row& row : rows) {
    if (IsForPeople(row) && !IsUnset(row)) {
      out.Add(isOpen ? ""_html : "<dl>"_html, "<div><dt>"_html, row.label, "</dt><dd>"_html);
      AddValue(out, *row.property->schema, row.value);
      out.Add("</dd></div>"_html);
      isOpen = true;
    }
  }
  if (isOpen) {
    out.Add("</dl>"_html);
  }
  AddUnset(out, rows);
  const cim::StoredInstance* const one = &instance;
  AddCimProperties(out, {&one, 1});
  out.Add("</article>\n"_html);
}

}  // namespace strake::report
