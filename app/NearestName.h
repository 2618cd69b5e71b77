// What somebody who mistyped a name may have meant.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace strake::app {

// The known name that is the fewest changes (a letter put in, left out,
// exchanged, or two neighbours swapped) away; the first of several. Empty when
// more than a third of the longer name would have to change.
std::string_view NearestName(std::string_view name, std::span<const std::string_view> known);

// ", did you mean 'NAME'?", or nothing when no name is near.
std::string DidYouMean(std::string_view name, std::span<const std::string_view> known);

}  // namespace strake::app
