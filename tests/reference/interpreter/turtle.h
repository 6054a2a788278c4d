#pragma once

#include <cstdint>

namespace zerimo::reference {

/// Where the turtle is and how it draws. `TurtleX`, `TurtleY` are surface units from the left and top edges of the
/// surface, `TurtleDir` is in radians, 0 up and growing clockwise, never normalised.
struct Turtle {
  double TurtleX = 0;
  double TurtleY = 0;
  double TurtleDir = 0;
  /// Surface units per turtle step.
  double Resolution = 50;
  /// 1 window (no limit), 2 fence.
  std::uint8_t FenceMode = 1;
  /// 1 down, 2 up, 3 erase.
  std::uint8_t PenState = 1;
  /// Colour code 0 to 15.
  std::uint8_t PenColor = 15;
  /// Colour code of the background; the raw colour value of the surface until the first `SETBG`.
  std::int32_t BGColor = 0;
};

}  // namespace zerimo::reference
