// The page's cards: one for each instance that is no sensor and no login, and a
// matrix of the logins and what they permit.
#pragma once

#include "report/HtmlOut.h"
#include "report/ProcessorParts.h"

#include <span>

namespace strake::report {

using Instances = std::span<const cim::StoredInstance* const>;

void AddCard(HtmlOut& out, const cim::StoredInstance& instance);

[[nodiscard]] bool IsLogin(const cim::StoredInstance& instance);

// There is at least one.
void AddLogins(HtmlOut& out, Instances logins);

}  // namespace strake::report
