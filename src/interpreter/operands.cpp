#include "interpreter/operands.h"

#include "base/numbers.h"

namespace zerimo {

double Operands::Coordinate(Operand::Kind kind) const {
  if (!CoordinatesExist()) return NoNumber;
  return PlainOrNone(kind == Operand::Kind::XCor ? X() : Y());  // Never fails: the place exists.
}

double Operands::X() const {
  return RoundToDecimals(Divide(turtle_.TurtleX - Form1.Width / 2.0, turtle_.Resolution), 1);
}

double Operands::Y() const {
  return RoundToDecimals(Divide(Form1.Height() / 2.0 - turtle_.TurtleY, turtle_.Resolution), 1);
}

}  // namespace zerimo
