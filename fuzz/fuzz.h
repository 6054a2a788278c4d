#pragma once

#include <cstdlib>
#include <string_view>

namespace zerimo::fuzz {

/// Tries one input. Each target has a function of this name. What goes wrong ends the program, so that the input is
/// kept. A target repeats: nothing in it depends on the clock, on the inputs before or on files that may change.
void Try(std::string_view input);

inline void Require(bool isSo) {
  if (!isSo) std::abort();
}

}  // namespace zerimo::fuzz
