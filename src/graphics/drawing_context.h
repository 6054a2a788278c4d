#pragma once

#include "base/services.h"
#include "controls/form_controls.h"
#include "graphics/surface.h"
#include "interpreter/arguments.h"
#include "interpreter/dispatch.h"
#include "interpreter/turtle_state.h"

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
