// The page's own style and script, as they stand in report/page.
#pragma once

#include <string_view>

namespace strake::report {

struct PageAsset {
  std::string_view text;
  std::string_view hash;  // as Content-Security-Policy writes it: "sha256-..."
};

PageAsset PageStyle();
PageAsset PageScript();

}  // namespace strake::report
