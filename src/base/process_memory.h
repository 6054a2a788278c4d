#pragma once

#include <cstdint>

namespace zerimo {

/// The memory of this process in bytes; 0 where the operating system does not say.
struct ProcessMemory {
  /// All that it has asked for.
  std::uint64_t Addresses = 0;
  /// What of that occupies the machine's memory.
  std::uint64_t Occupied = 0;
};

ProcessMemory MemoryOfProcess();

}  // namespace zerimo
