#include "reference/graphics/step_numbers.h"

#include "base/failure.h"
#include "reference/base/numbers.h"

namespace zerimo::reference {

double StepsToUnits(const Turtle& turtle, double steps) {
  double units = 0;
  SkipOnFailure([&] { units = Finite(steps * turtle.Resolution); });
  return units;
}

std::int16_t WholeNumber(double number) {
  std::int16_t whole = 0;
  SkipOnFailure([&] { whole = ToInt16(number); });
  return whole;
}

std::int16_t WholeStepsToUnits(const Turtle& turtle, double steps) {
  return WholeNumber(StepsToUnits(turtle, WholeNumber(steps)));
}

std::int32_t LongNumber(double number) {
  std::int32_t whole = 0;
  SkipOnFailure([&] { whole = ToInt32(number); });
  return whole;
}

std::int32_t ColourCode(double number) { return ToInt32(number) % 16; }

}  // namespace zerimo::reference
