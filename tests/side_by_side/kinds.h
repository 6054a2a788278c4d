#pragma once

#include "graphics/graphics.h"
#include "interpreter/interpreter.h"
#include "reference/graphics/colours.h"
#include "reference/graphics/motion.h"
#include "reference/graphics/shapes.h"
#include "reference/graphics/turtle_figure.h"
#include "reference/graphics/turtle_places.h"
#include "reference/interpreter/interpreter.h"

namespace zerimo {

/// The system's own parts.
struct Present {
  using Turtle = zerimo::Turtle;
  using Interpreter = zerimo::Interpreter;
  using DrawingContext = zerimo::DrawingContext;
  using TurtleFigure = zerimo::TurtleFigure;
  using TurtlePlaces = zerimo::TurtlePlaces;
  using Motion = zerimo::Motion;
  using Colours = zerimo::Colours;
  using Shapes = zerimo::Shapes;
  using PrimitiveCall = zerimo::PrimitiveCall;
};

/// The literal interpreter's parts.
struct Literal {
  using Turtle = reference::Turtle;
  using Interpreter = reference::Interpreter;
  using DrawingContext = reference::DrawingContext;
  using TurtleFigure = reference::TurtleFigure;
  using TurtlePlaces = reference::TurtlePlaces;
  using Motion = reference::Motion;
  using Colours = reference::Colours;
  using Shapes = reference::Shapes;
  using PrimitiveCall = reference::PrimitiveCall;
};

/// The input of a call, which an action may rewrite.
inline std::string& RestOf(PrimitiveCall& call) { return call.Rest(); }
inline std::string& RestOf(reference::PrimitiveCall& call) { return call.Rest; }

}  // namespace zerimo
