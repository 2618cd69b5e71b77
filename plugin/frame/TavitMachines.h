// The machines with a Tavit processor, and the family that each belongs to.
#pragma once

#include <array>
#include <cstddef>

namespace strake {

inline constexpr std::size_t Max_Num_Machines = 9;

inline constexpr std::array<const char*, Max_Num_Machines> MachineTypeArray = {
    "5120", "5121", "5122", "5123", "5124", "5125", "5126", "5127", "5128",
};

// Kestle_Type of a machine that belongs to no family.
inline constexpr unsigned int kNoKestleType = 4;

// The family selector of the sensor readers, by the machine's place above.
constexpr unsigned int KestleTypeOf(std::size_t index) {
  constexpr std::array<unsigned int, Max_Num_Machines> kFamilies = {0, 0, 0, 1, 1, 2, 3, 3, 3};
  return index < Max_Num_Machines ? kFamilies.at(index) : kNoKestleType;
}

}  // namespace strake
