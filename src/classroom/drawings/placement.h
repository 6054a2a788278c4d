#pragma once

#include <optional>

#include "classroom/drawings/comparison.h"

namespace zerimo::classroom {

/// How the goal has to be turned, mirrored, scaled and shifted to become the drawing; the fewest and smallest changes
/// if there are several ways. Nothing if there is none.
std::optional<Placement> PlacementOf(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules);

}  // namespace zerimo::classroom
