#pragma once

#include <cstdint>
#include <exception>

namespace zerimo {

/// A run would take the machine's memory. Only the session catches it.
class OutOfMemory : public std::exception {
 public:
  const char* what() const noexcept override { return "The program needs more memory than the computer can spare."; }
};

/// The bytes that a process may occupy before others suffer: half of the machine's memory, but not more than 2
/// gigabytes.
std::uint64_t MemoryToSpare();

}  // namespace zerimo
