#include "base/wide_registers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zerimo {
namespace {

TEST(WideRegisters, FreeingThemChangesNoNumber) {
  const double angle = 0.7;
  const double before = std::sin(angle);
  FreeWideRegisters();
  EXPECT_EQ(std::sin(angle), before);
}

}  // namespace
}  // namespace zerimo
