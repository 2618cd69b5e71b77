// Files that hold descriptions, in a folder of their own.
#pragma once

#include "platform/server/ServerDescription.h"
#include "text/InputError.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace strake::platform {

class DescriptionFileTest : public testing::Test {
 protected:
  DescriptionFileTest()
      : fFolder(std::filesystem::path(testing::TempDir()) /
                ("description-files-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(fFolder);
  }
  ~DescriptionFileTest() override { std::filesystem::remove_all(fFolder); }

  [[nodiscard]] std::filesystem::path Write(const std::string& name,
                                            const std::string& text) const {
    std::ofstream(fFolder / name, std::ios::binary) << text;
    return fFolder / name;
  }

  std::filesystem::path fFolder;
};

inline std::string RefusalOf(const std::filesystem::path& file) {
  try {
    ReadServerDescription(file);
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "taken";
}

}  // namespace strake::platform
