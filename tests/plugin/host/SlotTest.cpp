// The binary contract with the host: which slot each operation stands in. The
// ABI gives a virtual destructor two entries, so slot n is entry n + 1.
#include "plugin/host/ICIM.h"
#include "plugin/host/IPluginCallbacks.h"
#include "plugin/host/TRootObject.h"

#include <cstring>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::ILogger;
using NVELKZEV20::IPluginBasicQueryCallbacks;
using NVELKZEV20::IPluginCallbacks;

// A pointer to a virtual member holds 1 + the byte offset of its table entry.
template <typename Member>
std::size_t Slot(Member member) {
  std::size_t representation = 0;
  static_assert(sizeof(member) >= sizeof(representation));
  std::memcpy(&representation, &member, sizeof(representation));
  EXPECT_EQ(representation % 2, 1U) << "not a virtual member";
  return (representation - 1) / sizeof(void*) - 1;
}

TEST(Slots, HostOperationsStandWhereTheHostHasThem) {
  EXPECT_EQ(Slot(&ICIMClass::GetName), 5U);
  EXPECT_EQ(Slot(&ICIMClass::CreateInstance), 22U);
  EXPECT_EQ(Slot(&ICIMNamespace::GetClass), 5U);
  EXPECT_EQ(Slot(&ICIMInstance::Commit), 2U);
  EXPECT_EQ(Slot(&ICIMInstance::SetProperty), 11U);
  EXPECT_EQ(Slot(&ILogger::Log), 1U);
}

TEST(Slots, CallbacksStandWhereTheHostCallsThem) {
  EXPECT_EQ(Slot(&IPluginCallbacks::GetReserved), 1U);
  EXPECT_EQ(Slot(&IPluginCallbacks::GetDisplayName), 2U);
  EXPECT_EQ(Slot(&IPluginCallbacks::GetVersion), 3U);
  EXPECT_EQ(Slot(&IPluginCallbacks::GetFrameworkVersion), 4U);
  EXPECT_EQ(Slot(&IPluginCallbacks::Destroy), 5U);
  EXPECT_EQ(Slot(&IPluginCallbacks::Initialize), 6U);
  EXPECT_EQ(Slot(&IPluginCallbacks::Deinitialize), 7U);
  EXPECT_EQ(Slot(&IPluginBasicQueryCallbacks::Query), 1U);
}

}  // namespace
}  // namespace strake::tests
