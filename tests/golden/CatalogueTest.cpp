// Whole collections hold the plug-in's names and the catalogue against each
// other: neither knows of the other.
#include "cim/Catalogue.h"
#include "cim/TCIMValueContent.h"
#include "platform/server/ServerDescription.h"
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/base/ClassNames.h"
#include "tests/support/Places.h"
#include "tests/support/Scenario.h"
#include "tests/support/WholeCollection.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace strake::tests {
namespace {

using Names = std::set<std::string>;

// Notes "CLASS.PROPERTY TYPE" of whatever is set, refused or not.
class PropertyNotes : public platform::BoundaryObserver {
 public:
  void OnCreateInstance(const std::string& className, unsigned long instance) override {
    fClasses[instance] = className;
  }
  void OnSetProperty(unsigned long instance, const std::string& name,
                     const NVELKZEV20::TCIMValue& value) override {
    static const std::string kTypes[] = {"", "string", "sint32", "uint16", "uint8", "datetime"};
    set.insert(fClasses.at(instance) + "." + name + " " +
               kTypes[NVELKZEV20::TCIMValueContent::Of(value).index()]);
  }

  Names set;

 private:
  std::map<unsigned long, std::string> fClasses;
};

void Collect(const platform::ServerDescription& server, PropertyNotes& notes) {
  Identifiers() = SharedIdentifiers{};
  platform::HostSession session(server, &notes);
  session.Attach(&StrakeModuleEntry);
  for (const auto& classes : WholeCollectionQueries()) {
    session.Query(classes);
  }
  session.Detach();
}

// An Orlo card that answers every command with zeros, and two of each entry.
platform::ServerDescription ServerOfZeros() {
  Scenario scenario = Scenario::Orlo(1);
  for (const char* const component : {"4.1.3.1.255", "4.1.4.1.255", "4.9.1.1.255", "4.3.1.1.255"}) {
    scenario.Component(component, 2);
  }
  const std::string zeros(64, '\0');
  for (const char* const command : {"4.4.2", "4.9.3.1.1", "4.9.3.1.2", "4.9.3.1.3", "4.9.3.1.5",
                                    "4.9.3.1.6", "4.9.3.2.255", "4.9.3.1.4.255", "4.2.1.1"}) {
    scenario.Answer(command, zeros);
  }
  const std::string aDay = Bytes({24, 3, 18, 0, 9, 41, 7});
  scenario.Answer("4.4.1", aDay);
  for (const std::string n : {"1", "2"}) {
    for (const std::string& command :
         {"4.1.2." + n + ".255", "4.1.3." + n + ".255", "4.1.4." + n + ".255", "4.1.4." + n + ".9",
          "4.9.1." + n + ".255"}) {
      scenario.Answer(command, zeros);
    }
    scenario.Answer("4.1.4." + n + ".3", aDay);
    for (int value = 1; value <= 9; ++value) {
      scenario.Answer("4.9.1." + n + ".16." + std::to_string(value), zeros);
    }
  }
  return scenario.server;
}

// Of all classes but the sensors, which are the demonstration servers' part.
Names InCatalogue(bool withSensors) {
  Names names;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    if (schema.group == cim::QueryGroup::Sensors && !withSensors) {
      continue;
    }
    for (const cim::SchemaProperty& property : schema.properties) {
      names.insert(std::string(schema.name) + "." + std::string(property.name) + " " +
                   std::string(cim::CimTypeName(property.type)));
    }
  }
  return names;
}

TEST(Catalogue, HasExactlyTheClassesThatThePlugInIsAskedFor) {
  const Names plugin = {kSPComputerSystem,      kIPProtocolEndpoint,    kIPProtocolEndpoint2,
                        kDialProtocolEndpoint1, kDialProtocolEndpoint2, kDialProtocolEndpoint3,
                        kDialProtocolEndpoint4, kNumericSensor};
  Names catalogue;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    catalogue.emplace(schema.name);
  }
  EXPECT_EQ(catalogue, plugin);
}

TEST(Catalogue, HasExactlyThePropertiesAndTypesThatThePlugInSetsOnAServerOfZeros) {
  PropertyNotes notes;
  Collect(ServerOfZeros(), notes);
  EXPECT_EQ(notes.set, InCatalogue(false));
}

TEST(Catalogue, HasExactlyThePropertiesAndTypesThatThePlugInSetsOnTheServersOfTheTree) {
  PropertyNotes notes;
  int servers = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(SourceFolder()) / "servers")) {
    Collect(platform::ReadServerDescription(entry), notes);
    ++servers;
  }
  EXPECT_GE(servers, 2);
  EXPECT_EQ(notes.set, InCatalogue(true));
}

}  // namespace
}  // namespace strake::tests
