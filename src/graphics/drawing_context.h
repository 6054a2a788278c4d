#pragma once

#include "base/services.h"
#include "controls/controls.h"
#include "graphics/surface.h"
#include "interpreter/arguments.h"
#include "interpreter/dispatch.h"
#include "interpreter/turtle.h"

namespace zerimo {

/// What the drawing primitives work on.
struct DrawingContext {
  Turtle& turtle;
  Surface& Picture1;
  Controls& controls;
  const Arguments& arguments;
  Services& services;
  Dispatch& dispatch;
};

}  // namespace zerimo
