#pragma once

#include <vector>

#include "graphics/surface.h"

namespace zerimo {

/// What drawing on a surface depends on beside its pixels, as operations that set it.
std::vector<surface_operation::Set> DrawingState(const Surface& surface);

/// Carries out an operation that a recorder was told of, on another surface. A picture is not loaded again.
void Repeat(const SurfaceOperation& operation, Surface& surface);

}  // namespace zerimo
