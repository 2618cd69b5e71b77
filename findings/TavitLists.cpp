#include "findings/TavitLists.h"

#include "plugin/environ/SensorDecoding.h"
#include "plugin/frame/TavitMachines.h"

#include <algorithm>

namespace strake::findings {

std::optional<TavitList> FindTavitList(int code) {
  for (std::size_t list = 0; list < kTavitLists.size(); ++list) {
    if (kTavitLists.at(list).request->code == code) {
      return static_cast<TavitList>(list);
    }
  }
  return std::nullopt;
}

std::span<const char* const> TavitMachines() { return MachineTypeArray; }

std::string_view MachineType(std::string_view machineTypeModel) {
  return machineTypeModel.substr(0, 4);
}

std::optional<std::size_t> FindTavitFamily(std::string_view machineTypeModel) {
  const auto* const machine = std::ranges::find(MachineTypeArray, MachineType(machineTypeModel));
  const unsigned int family =
      KestleTypeOf(static_cast<std::size_t>(machine - MachineTypeArray.begin()));
  return family < std::size(kTavitFamilies) ? std::optional<std::size_t>(family) : std::nullopt;
}

std::span<const unsigned char> ExpectedLengths(const TavitFamily& family, TavitList list) {
  switch (list) {
    case TavitList::Voltages:
      return {&family.voltages.expectedLength, 1};
    case TavitList::Temperatures:
      return {&family.temperatures.expectedLength, 1};
    case TavitList::Fans:
      break;
  }
  return family.fans ? family.fans->expectedLengths : std::span<const unsigned char>();
}

std::span<const char* const> SensorNames(const TavitFamily& family, TavitList list,
                                         unsigned char length) {
  switch (list) {
    case TavitList::Voltages:
      return family.voltages.names;
    case TavitList::Temperatures:
      return family.temperatures.names;
    case TavitList::Fans:
      break;
  }
  if (!family.fans) {
    return {};
  }
  const std::size_t fans = family.fans->fans != 0 ? family.fans->fans : KestleFansByLength(length);
  return std::span(kKestleFanNames).first(std::min(fans, std::size(kKestleFanNames)));
}

}  // namespace strake::findings
