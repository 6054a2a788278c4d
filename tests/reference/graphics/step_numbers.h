#pragma once

#include <cstdint>

#include "reference/graphics/drawing_context.h"

/// Inputs of the drawing primitives as numbers in surface units. Each rounding and each product is a statement of its
/// own under the skip rule: a number that could not be computed is 0.
namespace zerimo::reference {

/// Turtle steps times `Resolution`.
double StepsToUnits(const Turtle& turtle, double steps);

/// Rounded to 16 bits.
std::int16_t WholeNumber(double number);

/// Rounded to 16 bits before and after the multiplication with `Resolution`.
std::int16_t WholeStepsToUnits(const Turtle& turtle, double steps);

/// Rounded to 32 bits.
std::int32_t LongNumber(double number);

/// A number reduced to a colour code: rounded to 32 bits, then its remainder by 16 with the number's sign. Unlike the
/// others, this one fails (overflow).
std::int32_t ColourCode(double number);

}  // namespace zerimo::reference
