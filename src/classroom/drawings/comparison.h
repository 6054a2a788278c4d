#pragma once

#include <optional>

#include "classroom/drawings/drawing.h"

namespace zerimo::classroom {

/// What counts when two drawings are compared by their shapes. The same lines and figures within the tolerance always
/// count.
struct ShapeRules {
  /// Surface units; 50 are one step of the turtle.
  double Tolerance = 50;
  bool Order = false;
  bool Direction = false;
  /// Whether a line drawn in two parts differs from one drawn at once.
  bool Splitting = false;
  bool Colour = false;
};

/// How a drawing lies where the goal's shapes are all there, but not in their place.
struct Placement {
  /// Clockwise, from -180 to 180.
  double Degrees = 0;
  bool Mirrored = false;
  double Scale = 1;
  /// Surface units, y downwards: of the middle of all shapes.
  Point Shift;
};

struct ShapeComparison {
  /// How much of both drawings the other one has too. 100 only where all of it is.
  double Percent = 0;
  /// Whether all that counts is alike.
  bool Same = false;
  /// What the goal has and the drawing lacks, and the other way round.
  Drawing Missing;
  Drawing Extra;
  /// Set if it is the goal turned, mirrored, scaled or shifted.
  std::optional<Placement> Placed;
};

ShapeComparison Compare(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules);

}  // namespace zerimo::classroom
