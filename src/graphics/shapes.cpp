#include "graphics/shapes.h"

#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"
#include "graphics/step_numbers.h"

namespace zerimo {

namespace {

constexpr double EllipsePi = 3.14159265;
constexpr double EllipseTurn = 6.2831853;

/// The remainder by 256, with the number's sign.
std::int16_t ColourPart(double number) {
  std::int16_t part = 0;
  SkipOnFailure([&] { part = static_cast<std::int16_t>(ToInt32(number) % 256); });
  return part;
}

}  // namespace

void Shapes::Bind() {
  BindFigures();
  BindStamps();
}

void Shapes::BindFigures() {
  Dispatch& dispatch = context_.dispatch;
  dispatch.Bind("POINT", [this](PrimitiveCall& call) { Point(call); });
  dispatch.Bind("DOT", [this](PrimitiveCall& call) { Dot(call); });
  dispatch.Bind("CIRCLE", [this](PrimitiveCall& call) { Circle(call); });
  dispatch.Bind("LINE", [this](PrimitiveCall& call) { Line(call); });
  dispatch.Bind("ELLIPSE", [this](PrimitiveCall& call) { Ellipse(call); });
  dispatch.Bind("LINERGB", [this](PrimitiveCall& call) { LineRGB(call); });
  dispatch.Bind("ELLIPSERGB", [this](PrimitiveCall& call) { EllipseRGB(call); });
}

void Shapes::BindStamps() {
  Dispatch& dispatch = context_.dispatch;
  dispatch.Bind("STAMPCIRCLE", [this](PrimitiveCall& call) { StampCircle(call); });
  dispatch.Bind("STAMPOVAL", [this](PrimitiveCall& call) { StampOval(call); });
  dispatch.Bind("STAMPRECT", [this](PrimitiveCall& call) { StampRect(call); });
  dispatch.Bind("STAMPOVALRGB", [this](PrimitiveCall& call) { StampOvalRGB(call); });
  dispatch.Bind("STAMPRECTRGB", [this](PrimitiveCall& call) { StampRectRGB(call); });
  dispatch.Bind("FILL", [this](PrimitiveCall& call) { Fill(call); });
  dispatch.Bind("FILLSTYLE", [this](PrimitiveCall& call) { FillStyle(call); });
}

void Shapes::Point(PrimitiveCall& call) {
  const std::int16_t red = ColourPart(Word(call, 1));
  const std::int16_t green = ColourPart(Word(call, 2));
  // Blue is not reduced: outside 0 to 255 it counts as 0.
  std::uint8_t blue = 0;
  SkipOnFailure([&] { blue = ToByte(Word(call, 3)); });
  SkipOnFailure(
      [&] { context_.Picture1.PSet(context_.turtle.TurtleX, context_.turtle.TurtleY, RGB(red, green, blue)); });
}

void Shapes::Dot(PrimitiveCall& call) {
  const double x = Units(call, 1);
  const std::int16_t y = WholeStepsToUnits(context_.turtle, Word(call, 2));
  if (PenIsUp()) return;
  // In the pen's colour code, so that a dot shows even if the pen erases.
  SkipOnFailure([&] { context_.Picture1.PSet(CentreX() + x, CentreY() - y, QBColor(context_.turtle.PenColor)); });
}

void Shapes::Circle(PrimitiveCall& call) {
  const double x = Units(call, 1);
  const double y = Units(call, 2);
  const std::int16_t radius = WholeStepsToUnits(context_.turtle, Word(call, 3));
  if (PenIsUp()) return;
  SkipOnFailure([&] { context_.Picture1.Circle(CentreX() + x, context_.controls.Screen.Height / 2.0 - y, radius); });
}

void Shapes::Line(PrimitiveCall& call) {
  const double x1 = Units(call, 1);
  const double y1 = Units(call, 2);
  const double x2 = Units(call, 3);
  // Of the four inputs only the last is whole; its product and the rounding are one statement.
  const std::int16_t y2 = WholeNumber(Word(call, 4));
  const std::int16_t endY = WholeNumber(CentreY() - y2 * context_.turtle.Resolution);
  if (PenIsUp()) return;
  SkipOnFailure([&] { context_.Picture1.Line(CentreX() + x1, CentreY() - y1, CentreX() + x2, endY); });
}

void Shapes::LineRGB(PrimitiveCall& call) { InOutlineColour(call, 5, &Shapes::Line); }

void Shapes::Ellipse(PrimitiveCall& call) { EllipseWithAngle(call, 5); }

void Shapes::EllipseRGB(PrimitiveCall& call) {
  InOutlineColour(call, 5, [](Shapes& shapes, PrimitiveCall& ellipse) { shapes.EllipseWithAngle(ellipse, 6); });
}

void Shapes::EllipseWithAngle(PrimitiveCall& call, int angleWord) {
  const double x = Units(call, 1);
  const double y = Units(call, 2);
  const double halfWidth = Units(call, 3);
  const double halfHeight = Units(call, 4);
  const std::int16_t degrees = WholeNumber(Word(call, angleWord));
  if (PenIsUp()) return;
  SkipOnFailure([&] {
    DrawEllipse(ToSingle(CentreX() + x), ToSingle(CentreY() - y), ToSingle(halfWidth), ToSingle(halfHeight), degrees);
  });
}

void Shapes::DrawEllipse(float x, float y, float a, float b, float deg) {
  Surface& surface = context_.Picture1;
  const float r = ToSingle(deg * EllipsePi / 180);
  const float s = ToSingle(std::sin(static_cast<double>(r)));
  const float c = ToSingle(std::cos(static_cast<double>(r)));
  const double step = EllipseTurn / 50;
  double t = 0;
  const auto pointAtT = [&] {
    const double dx = a * std::cos(t);
    const double dy = b * std::sin(t);
    return PixelPoint{x + dx * c + dy * s, y - dx * s + dy * c};
  };
  const auto start = pointAtT();
  surface.SetCurrentX(start.X);
  surface.SetCurrentY(start.Y);
  // As a single the limit is a little larger, so the chain has 51 chords.
  while (static_cast<double>(static_cast<float>(EllipseTurn)) > t) {
    t += step;
    const auto end = pointAtT();
    surface.LineTo(end.X, end.Y);
  }
}

void Shapes::InOutlineColour(PrimitiveCall& call, int colourWord, const FigureProcedure& draw) {
  Surface& surface = context_.Picture1;
  const Colour colour = LongNumber(Word(call, colourWord));
  const Colour saved = surface.ForeColor();
  surface.SetForeColor(colour);
  draw(*this, call);
  surface.SetForeColor(saved);
}

void Shapes::StampCircle(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "STAMPCIRCLE")) return;
  const double radius = StepsToUnits(context_.turtle, context_.arguments.Number(call));
  SkipOnFailure([&] { context_.Picture1.Circle(context_.turtle.TurtleX, context_.turtle.TurtleY, radius); });
}

void Shapes::StampOval(PrimitiveCall& call) {
  const double width = Word(call, 1);
  const double height = Word(call, 2);
  double longer = StepsToUnits(context_.turtle, width);
  const double high = StepsToUnits(context_.turtle, height);
  double aspect = 0;
  SkipOnFailure([&] { aspect = Divide(high, longer); });
  if (high > longer) SkipOnFailure([&] { longer = Divide(longer, Divide(longer, high)); });
  if (width == 0 || height == 0) return;
  SkipOnFailure(
      [&] { context_.Picture1.Circle(context_.turtle.TurtleX, context_.turtle.TurtleY, longer / 2, aspect); });
}

void Shapes::StampRect(PrimitiveCall& call) {
  const Turtle& turtle = context_.turtle;
  const double x = Units(call, 1) / 2;
  const double y = Units(call, 2) / 2;
  SkipOnFailure(
      [&] { context_.Picture1.Box(turtle.TurtleX - x, turtle.TurtleY - y, turtle.TurtleX + x, turtle.TurtleY + y); });
}

void Shapes::StampOvalRGB(PrimitiveCall& call) { InStampColour(call, &Shapes::StampOval); }

void Shapes::StampRectRGB(PrimitiveCall& call) { InStampColour(call, &Shapes::StampRect); }

void Shapes::InStampColour(PrimitiveCall& call, const FigureProcedure& draw) {
  Surface& surface = context_.Picture1;
  const Colour savedFill = surface.FillColor();
  const auto drawFilled = [&surface, &draw](Shapes& shapes, PrimitiveCall& stamp) {
    surface.SetFillColor(surface.ForeColor());
    draw(shapes, stamp);
  };
  InOutlineColour(call, 3, drawFilled);
  surface.SetFillColor(savedFill);
}

void Shapes::Fill(PrimitiveCall& call) {
  const double number = context_.arguments.Number(call);
  std::int32_t code = 0;
  SkipOnFailure([&] { code = ColourCode(number); });
  SkipOnFailure([&] { context_.Picture1.SetFillColor(QBColor(code)); });
}

void Shapes::FillStyle(PrimitiveCall& call) {
  const std::int32_t number = LongNumber(context_.arguments.Number(call));
  SkipOnFailure([&] { context_.Picture1.SetFillStyle(FillPattern{number % 8}); });
}

double Shapes::Word(PrimitiveCall& call, int nthWord) const {
  return context_.arguments.WordNumber(call.Rest(), nthWord);
}

double Shapes::Units(PrimitiveCall& call, int nthWord) const {
  return StepsToUnits(context_.turtle, Word(call, nthWord));
}

double Shapes::CentreX() const noexcept { return context_.Picture1.Width / 2.0; }

double Shapes::CentreY() const noexcept { return context_.controls.Form1.Height() / 2.0; }

}  // namespace zerimo
