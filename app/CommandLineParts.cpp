#include "app/CommandLineParts.h"

namespace strake::app {

CLI::Option* AddValue(CLI::App& app, const std::string& name, const std::string& type,
                      const std::string& text, const Take& take) {
  const auto takeAll = [take](const CLI::results_t& values) {
    for (const std::string& value : values) {
      take(value);
    }
    return true;
  };
  return app.add_option(name, takeAll, text)->type_name(type)->allow_extra_args(false);
}

std::string RefuseEmptyName(const std::string& name) {
  return name.empty() ? "the name of a file was expected" : "";
}

CLI::Option* AddFile(CLI::App& app, const std::string& name, const std::string& text,
                     std::optional<std::filesystem::path>& file) {
  return AddValue(app, name, "FILE", text, [&file](const std::string& value) { file = value; })
      ->check(RefuseEmptyName);
}

}  // namespace strake::app
