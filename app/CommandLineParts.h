// What the options of all subcommands are made of.
#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace strake::app {

// The value as it was typed: converted, "{}" and the empty text would be none.
using Take = std::function<void(const std::string&)>;

CLI::Option* AddValue(CLI::App& app, const std::string& name, const std::string& type,
                      const std::string& text, const Take& take);

// An option that names a file.
CLI::Option* AddFile(CLI::App& app, const std::string& name, const std::string& text,
                     std::optional<std::filesystem::path>& file);

// A check for the name of a file.
std::string RefuseEmptyName(const std::string& name);

}  // namespace strake::app
