#pragma once

#include <cmath>

#include "controls/controls.h"
#include "interpreter/formula.h"
#include "interpreter/slot_forms.h"
#include "interpreter/turtle.h"

namespace zerimo {

/// What is pasted for the names of an expression.
/// Behaviour: docs/interpreter.md, "Beside an expression".
class Operands {
 public:
  Operands(const SlotTable& slotTable, const Turtle& turtle, const Window& window)
      : slotTable_(slotTable), turtle_(turtle), Form1(window) {}

  /// The value of a local, a global or a coordinate, if its text is nothing but digits, a point and a minus sign;
  /// otherwise no number.
  double NumberOf(const Operand& operand) const {
    const double* const place = PlaceOf(operand);
    return place != nullptr ? *place : Coordinate(operand.What);
  }

  /// Where the value of a local or a global is kept, for as long as the slots exist; otherwise null.
  const double* PlaceOf(const Operand& operand) const noexcept {
    if (operand.What == Operand::Kind::Local) return &slotTable_.FormOf(operand.Index).Number;
    if (operand.What == Operand::Kind::Global) return &slotTable_.FormOf(operand.Index).Pasted;
    return nullptr;
  }

  /// The turtle's place in steps from the middle, rounded to one decimal. Fail (division by zero, overflow) if a step
  /// is 0 units long, or too short.
  double X() const;
  double Y() const;

  /// Whether the turtle's place can be expressed in steps: if not, every `MAKE` and every condition fails.
  bool CoordinatesExist() const {
    // Far inside the range of numbers, so that no quotient leaves it.
    constexpr double largest = 1E100;
    const double resolution = std::abs(turtle_.Resolution);
    return std::abs(turtle_.TurtleX) + std::abs(turtle_.TurtleY) < largest && resolution > 1 / largest &&
           resolution < largest;
  }

 private:
  /// Never fails.
  double Coordinate(Operand::Kind kind) const;

  const SlotTable& slotTable_;
  const Turtle& turtle_;
  const Window& Form1;
};

}  // namespace zerimo
