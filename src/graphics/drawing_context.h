#pragma once

#include "controls/form_controls.h"
#include "core/dispatch.h"
#include "core/services.h"
#include "core/turtle_state.h"
#include "graphics/surface.h"
#include "language/arguments.h"

namespace zerimo {

/// What the drawing primitives work on.
struct DrawingContext {
  TurtleState& Turtle;
  Surface& Picture1;
  FormControls& Controls;
  const Arguments& Inputs;
  Services& Desktop;
  Dispatch& Primitives;
};

}  // namespace zerimo
