#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zerimo {

/// Runs a random session on both interpreters; returns where they first differ, or nothing. Adds to `lines` the number
/// of program lines run.
std::optional<std::string> FirstDifference(unsigned seed, std::uint64_t& lines);

}  // namespace zerimo
