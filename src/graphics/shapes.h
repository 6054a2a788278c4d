#pragma once

#include <functional>

#include "graphics/drawing_context.h"

namespace zerimo {

/// Shapes and stamps, `FILL` and `FILLSTYLE`. None of them moves the turtle or minds the fence.
class Shapes {
 public:
  explicit Shapes(const DrawingContext& context) : context_(context) {}

  /// Binds the primitives to their actions.
  void Bind();

 private:
  void BindFigures();
  void BindStamps();

  void Point(PrimitiveCall& call);
  void Dot(PrimitiveCall& call);
  void Circle(PrimitiveCall& call);
  void Line(PrimitiveCall& call);
  void LineRGB(PrimitiveCall& call);
  void Ellipse(PrimitiveCall& call);
  void EllipseRGB(PrimitiveCall& call);
  void StampCircle(PrimitiveCall& call);
  void StampOval(PrimitiveCall& call);
  void StampRect(PrimitiveCall& call);
  void StampOvalRGB(PrimitiveCall& call);
  void StampRectRGB(PrimitiveCall& call);
  void Fill(PrimitiveCall& call);
  void FillStyle(PrimitiveCall& call);

  /// The ellipse of an `ELLIPSE` whose angle is the word with that number.
  void EllipseWithAngle(PrimitiveCall& call, int angleWord);
  /// An ellipse of half-axes a and b, turned by degrees, as a chain of chords. Fails as the surface does.
  void DrawEllipse(float x, float y, float a, float b, float deg);
  using FigureProcedure = std::function<void(Shapes&, PrimitiveCall&)>;
  /// Draws in the colour value given by the word with that number, then restores the foreground colour.
  void InOutlineColour(PrimitiveCall& call, int colourWord, const FigureProcedure& draw);
  /// The same for a stamp, with its inside in the colour too.
  void InStampColour(PrimitiveCall& call, const FigureProcedure& draw);

  bool PenIsUp() const noexcept { return context_.turtle.PenState == PenPosition::Up; }
  double Word(PrimitiveCall& call, int nthWord) const;
  /// A word in turtle steps as surface units.
  double Units(PrimitiveCall& call, int nthWord) const;
  double CentreX() const noexcept;
  double CentreY() const noexcept;

  DrawingContext context_;
};

}  // namespace zerimo
