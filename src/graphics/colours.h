#pragma once

#include "graphics/drawing_context.h"
#include "graphics/turtle_figure.h"

namespace zerimo {

/// The colour primitives: `SETPC`, `SETBG`, `TEXTCOLOR`, `TEXTBACKGROUND`.
class Colours {
 public:
  Colours(const DrawingContext& context, TurtleFigure& turtleFigure) : context_(context), turtleFigure_(turtleFigure) {}

  /// Binds the primitives to their actions.
  void Bind();

  /// Changes the background under a drawing, point by point on a grid. Nothing calls it. Fails as its steps do.
  void FillBack(std::int32_t newBGColor);

 private:
  void SetPC(PrimitiveCall& call);
  void SetBG(PrimitiveCall& call);
  void TextColor(PrimitiveCall& call);
  void TextBackground(PrimitiveCall& call);

  /// Moves the frames of the palette to the square of a number, which is not reduced to a code. Never fails.
  void SelectSquare(double number);

  DrawingContext context_;
  TurtleFigure& turtleFigure_;
};

}  // namespace zerimo
