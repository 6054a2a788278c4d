#pragma once

#include <cstdint>
#include <string_view>

namespace zerimo {

/// Where a move may end: anywhere, or on the surface only.
enum class TurtleBounds : std::uint8_t { Window = 1, Fence = 2 };

enum class PenPosition : std::uint8_t { Down = 1, Up = 2, Erase = 3 };

constexpr std::string_view PenStateName(PenPosition pen) noexcept {
  switch (pen) {
    case PenPosition::Down:
      return "Pen Down";
    case PenPosition::Up:
      return "Pen Up";
    case PenPosition::Erase:
      return "Pen Erase";
  }
  return {};
}

/// Half a turn where a direction is shown: by the figure, the title line and the palette's hint.
constexpr double ShownPi = 3.1415927;

/// Where the turtle is and how it draws. `TurtleX`, `TurtleY` are surface units from the left and top edges of the
/// surface, `TurtleDir` is in radians, 0 up and growing clockwise, never normalised.
/// Behaviour: docs/interpreter.md, "ReplaceXcorAndYcor".
struct Turtle {
  double TurtleX = 0;
  double TurtleY = 0;
  double TurtleDir = 0;
  /// Surface units per turtle step.
  double Resolution = 50;
  TurtleBounds FenceMode = TurtleBounds::Window;
  PenPosition PenState = PenPosition::Down;
  /// Colour code 0 to 15.
  std::uint8_t PenColor = 15;
  /// Colour code of the background; the raw colour value of the surface until the first `SETBG`.
  std::int32_t BGColor = 0;
};

}  // namespace zerimo
