// The machines with a Tavit processor, and the family that each belongs to.
#pragma once

#include <cstddef>
#include <iterator>

namespace strake {

inline constexpr std::size_t Max_Num_Machines = 9;

inline constexpr const char* MachineTypeArray[Max_Num_Machines] = {
    "5120", "5121", "5122", "5123", "5124", "5125", "5126", "5127", "5128",
};

// Kestle_Type of a machine that belongs to no family.
inline constexpr unsigned int kNoKestleType = 4;

// The family selector of the sensor readers, by the machine's place above.
constexpr unsigned int KestleTypeOf(std::size_t index) {
  constexpr unsigned int kFamilies[Max_Num_Machines] = {0, 0, 0, 1, 1, 2, 3, 3, 3};
  return index < Max_Num_Machines ? kFamilies[index] : kNoKestleType;
}

}  // namespace strake
