#pragma once

#include "graphics/surface.h"
#include "reference/interpreter/arguments.h"
#include "reference/interpreter/context.h"
#include "reference/interpreter/dispatch.h"

namespace zerimo::reference {

/// What the drawing primitives work on besides.
struct DrawingContext : InterpreterContext {
  Surface& Picture1;
  const Arguments& arguments;
  Dispatch& dispatch;
};

}  // namespace zerimo::reference
