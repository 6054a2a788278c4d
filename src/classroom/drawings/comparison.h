#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "classroom/drawings/drawing.h"

namespace zerimo::classroom {

/// What counts when two drawings are compared by their shapes. The same lines and figures within the tolerance always
/// count.
struct ShapeRules {
  /// Surface units.
  double Tolerance = UnitsPerStep;
  bool Order = false;
  bool Direction = false;
  /// Whether a line drawn in two parts differs from one drawn at once.
  bool Splitting = false;
  bool Colour = false;
};

/// What may be wrong with strokes that are where they should be.
enum class StrokeRule : std::uint8_t { Order, Direction, Splitting, Colour };
inline constexpr std::size_t StrokeRuleCount = 4;

/// How a drawing has all the goal's shapes, but in another place.
struct Placement {
  /// Clockwise, from -180 to 180.
  double Degrees = 0;
  bool Mirrored = false;
  double Scale = 1;
  /// How far the point where the goal begins has moved (its middle if it has no lines), in surface units, y downwards:
  /// a drawing that only began in another direction or size is not shifted. 0 within the tolerance.
  Point Shift;
};

/// Whether a drawing may be called the goal in another size: a dot is not a small house.
inline bool IsScale(double scale) { return scale >= 0.1 && scale <= 10; }

struct ShapeComparison {
  /// How much of each drawing is in the other one too. 100 only if all of it is.
  double Percent = 0;
  /// Whether all that counts is alike.
  bool Same = false;
  /// What the goal has and the drawing lacks, and vice versa.
  Drawing Missing;
  Drawing Extra;
  /// All shapes are there, but these of the rules are broken.
  std::vector<StrokeRule> Broken;
  /// Set if it is the goal turned, mirrored, scaled or shifted.
  std::optional<Placement> Placed;
};

ShapeComparison Compare(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules);

}  // namespace zerimo::classroom
