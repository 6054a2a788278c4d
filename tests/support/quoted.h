#pragma once

#include <gtest/gtest.h>

#include <string>

namespace zerimo {

/// A text as the name of a test shows it: between quotes, with unprintable characters written as escapes.
inline std::string Quoted(const char* text) { return testing::PrintToString(std::string(text)); }

}  // namespace zerimo
