#include "graphics/surface_text.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "graphics/step_numbers.h"

namespace zerimo {

void SurfaceText::Bind() {
  Dispatch& dispatch = context_.dispatch;
  dispatch.Bind("TEXTSIZE", [this](PrimitiveCall& call) { TextSize(call); });
  dispatch.Bind("WRITE", [this](PrimitiveCall& call) { Write(call); });
  dispatch.Bind("WRITERGB", [this](PrimitiveCall& call) { WriteRGB(call); });
}

void SurfaceText::TextSize(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "TEXTSIZE")) return;
  const double size = context_.arguments.Number(call);
  SkipOnFailure([&] { context_.Picture1.SetFontSize(size); });
}

void SurfaceText::Write(PrimitiveCall& call) {
  BeginAtTurtle();
  if (IsQuoted(call.Input)) {
    SkipOnFailure([&] { context_.Picture1.Print(WithoutEnds(call.Input)); });
  } else {
    const double number = context_.arguments.Number(call);
    context_.Picture1.Print(Str(number));
  }
}

void SurfaceText::WriteRGB(PrimitiveCall& call) {
  Surface& surface = context_.Picture1;
  BeginAtTurtle();
  std::string whole;
  SkipOnFailure([&] { whole = WithoutEnds(call.Input); });
  // The last comma counts, so that the text may contain commas.
  const int comma = LastPositionOf(whole, ',');
  std::string parameters(From(whole, comma + 1));  // Never fails.
  const double colour = context_.arguments.WordNumber(parameters, 1);
  const double x = StepsToUnits(context_.turtle, context_.arguments.WordNumber(parameters, 2));
  const double y = StepsToUnits(context_.turtle, context_.arguments.WordNumber(parameters, 3));
  const double size = context_.arguments.WordNumber(parameters, 4);
  SkipOnFailure([&] { surface.SetCurrentX(surface.Width / 2.0 + x); });
  // Only here does the height of the surface itself give the centre.
  SkipOnFailure([&] { surface.SetCurrentY(surface.Height() / 2.0 - y); });
  SkipOnFailure([&] { surface.SetFontSize(size); });
  std::string text;
  SkipOnFailure([&] { text = std::string(Left(whole, comma - 1)); });
  PrintInColour(text, colour);
}

void SurfaceText::PrintInColour(const std::string& text, double colour) {
  Surface& surface = context_.Picture1;
  const Colour saved = surface.ForeColor();
  SkipOnFailure([&] { surface.SetForeColor(ToInt32(colour)); });
  surface.Print(text);
  surface.SetForeColor(saved);
}

void SurfaceText::BeginAtTurtle() {
  SkipOnFailure([&] { context_.Picture1.SetCurrentX(context_.turtle.TurtleX); });
  SkipOnFailure([&] { context_.Picture1.SetCurrentY(context_.turtle.TurtleY); });
}

}  // namespace zerimo
