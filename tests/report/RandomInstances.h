// Collections of instances that no service processor would bring.
#pragma once

#include "cim/StoredInstance.h"
#include "report/Limits.h"
#include "tests/report/Instances.h"

#include <algorithm>
#include <array>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace strake::tests {

// In valid UTF-8. Each of them means something to one of the formats.
inline std::vector<std::string> HostileTexts() {
  return {
      "",
      "\"},{\"class\":\"X\"",
      "\\u0041\\",
      "\\\"\\\\",
      std::string("\0", 1),
      "\x1b[31m\r\n\b\f",
      "\x7f\xC2\x80\xC2\x9F",
      "\xE2\x80\xAE\xE2\x81\xA6\xD8\x9C",
      "\xE2\x80\xA8\xE2\x80\xA9",
      "\xEF\xBB\xBF\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF",
      "</script><!--",
      "]]>&amp;&#13;<VALUE/>'&",
      "\xEF\xBF\xBE\xEF\xBF\xBF\xEF\xBF\xBD",
      "\x01\x1f",
      "=1+1",
      "@SUM(A1)",
      "-cmd|' /C calc'!A0",
      "-12.50",
      "+41 44 1",
      "\t=1",
      "\r=1",
      "\n",
      " ",
      "a,b",
      "a;b",
      "'=1",
      "\"",
      "\"; }; instance of X { Y = \"",
      "// State: ok",
      "/*",
      "'",
      "\\xFF",
      "\\x0D",
  };
}

inline std::string RandomText(std::mt19937& random) {
  if (random() % 3 == 0) {
    static const std::vector<std::string> texts = HostileTexts();
    return texts[random() % texts.size()];
  }
  std::string text(random() % 40, '\0');
  for (char& byte : text) {
    byte = static_cast<char>(random());
  }
  return text;
}

inline cim::Value RandomValue(cim::CimType type, std::mt19937& random) {
  switch (type) {
    case cim::CimType::String:
      return RandomText(random);
    case cim::CimType::Sint32:
      return static_cast<std::int32_t>(random());
    case cim::CimType::Uint16:
      return static_cast<std::uint16_t>(random());
    case cim::CimType::Uint8:
      return static_cast<std::uint8_t>(random());
    case cim::CimType::DateTime:
      break;
  }
  return cim::DateTime("20100615134530.0000" + std::to_string(10 + random() % 90) + "-120");
}

inline std::vector<cim::StoredInstance> RandomInstances(std::mt19937& random) {
  std::vector<cim::StoredInstance> instances(random() % 6);
  for (cim::StoredInstance& instance : instances) {
    instance.schema = &cim::SchemaClasses()[random() % cim::SchemaClasses().size()];
    for (const cim::SchemaProperty& property : instance.schema->properties) {
      if (random() % 4 != 0) {
        instance.properties.push_back({&property, RandomValue(property.type, random)});
      }
    }
    std::shuffle(instance.properties.begin(), instance.properties.end(), random);
  }
  return instances;
}

// Sensors that measure something, beside those of which anything can be set.
inline cim::StoredInstance RandomSensor(std::mt19937& random) {
  constexpr std::array<std::uint16_t, 5> kUnits{2, 5, 19, 65, 20};
  const int modifier =
      random() % 8 == 0 ? static_cast<int>(random()) : static_cast<int>(random() % 60) - 30;
  return Sensor(static_cast<std::uint8_t>(random()), RandomText(random),
                static_cast<int>(random() % 20001) - 10000, kUnits.at(random() % 5), modifier);
}

inline std::optional<report::Limits> RandomLimits(std::mt19937& random) {
  if (random() % 2 == 0) {
    return std::nullopt;
  }
  const int bound = static_cast<int>(random() % 200) - 100;
  const report::Bound low{static_cast<double>(bound), std::to_string(bound)};
  const report::Bound high{bound + 50.5, std::to_string(bound + 50) + ".5"};
  return report::Limits{{.lowerCritical = low, .upperWarning = high}};
}

}  // namespace strake::tests
