#pragma once

#include "graphics/drawing_context.h"

namespace zerimo {

/// Motion and pen: `FD`, `BK`, `RT`, `LT`, `SETX`, `SETY`, `SETXY`, `RESOLUTION`, the pen states, `HT`, `ST`, `LW`,
/// `DRAWMODE`, `CLEAN`, `CS`.
class Motion {
 public:
  explicit Motion(const DrawingContext& context) : context_(context) {}

  /// Binds the primitives to their actions.
  void Bind();

 private:
  void BindMoves();
  void BindPen();

  void Forward(PrimitiveCall& call);
  void Back(PrimitiveCall& call);
  void Right(PrimitiveCall& call);
  void Left(PrimitiveCall& call);
  void SetX(PrimitiveCall& call);
  void SetY(PrimitiveCall& call);
  void SetXY(PrimitiveCall& call);
  void Resolution(PrimitiveCall& call);
  void Pen();
  void PenDown();
  void PenErase();
  void PenReverse();
  void ShowFigure(bool visible) noexcept;
  void LineWidth(PrimitiveCall& call);
  void DrawMode(PrimitiveCall& call);
  /// Never fails.
  void ClearScreen();

  /// Moves along the heading by surface units.
  void MoveBy(double distance);
  void Turn(double degrees);
  /// Whether the fence lets a move through. Fails (overflow) as its rounding does.
  bool AdmitsMove(double x, double y) const;
  bool AdmitsSetX(double x) const noexcept;
  bool AdmitsSetY(double y) const noexcept;
  bool AdmitsSetXY(double x, double y) const noexcept;
  void DrawTo(double x, double y);
  void Refuse();

  DrawingContext context_;
};

}  // namespace zerimo
