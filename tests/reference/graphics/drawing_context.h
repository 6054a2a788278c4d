#pragma once

#include "base/services.h"
#include "controls/controls.h"
#include "graphics/surface.h"
#include "reference/interpreter/arguments.h"
#include "reference/interpreter/dispatch.h"
#include "reference/interpreter/turtle.h"

namespace zerimo::reference {

/// What the drawing primitives work on.
struct DrawingContext {
  Turtle& turtle;
  Surface& Picture1;
  Controls& controls;
  const Arguments& arguments;
  Services& services;
  Dispatch& dispatch;
};

}  // namespace zerimo::reference
