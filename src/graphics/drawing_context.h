#pragma once

#include "graphics/surface.h"
#include "interpreter/arguments.h"
#include "interpreter/context.h"
#include "interpreter/dispatch.h"

namespace zerimo {

/// What the drawing primitives work on besides.
struct DrawingContext : InterpreterContext {
  Surface& Picture1;
  const Arguments& arguments;
  Dispatch& dispatch;
};

}  // namespace zerimo
