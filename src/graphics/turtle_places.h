#pragma once

#include "graphics/drawing_context.h"

namespace zerimo {

/// Places, readings and homes of the turtle: `FENCE`, `WINDOW`, `XCOR`, `YCOR`, `GETXY`, the `HOME` family, `DRAW`.
class TurtlePlaces {
 public:
  explicit TurtlePlaces(const DrawingContext& context) : context_(context) {}

  /// Binds the primitives to their actions.
  void Bind();

 private:
  void Fence();
  void XCor();
  void YCor();
  void GetXY();
  void Home();
  void HomeX();
  void HomeY();
  void HomeXY();

  void MoveHome(double x, double y);
  double CentreX() const noexcept;
  double CentreY() const noexcept;

  DrawingContext context_;
};

}  // namespace zerimo
