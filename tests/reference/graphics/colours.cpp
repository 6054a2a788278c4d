#include "reference/graphics/colours.h"

#include "base/failure.h"
#include "reference/base/numbers.h"
#include "reference/graphics/step_numbers.h"

namespace zerimo::reference {

namespace {

constexpr int LatticeStep = 50;

/// Sets one colour of the five rows, of the prompt and of the text screen, each in a statement of its own.
template <typename Statement>
void ForEachTextControl(Controls& controls, Statement&& statement) {
  for (int row = 0; row < controls.Text1.Size; ++row) SkipOnFailure([&] { statement(controls.Text1[row]); });
  SkipOnFailure([&] { statement(controls.Prompt); });
  SkipOnFailure([&] { statement(controls.List4); });
}

}  // namespace

void Colours::Bind() {
  Dispatch& dispatch = context_.dispatch;
  dispatch.Bind("SETPC", [this](PrimitiveCall& call) { SetPC(call); });
  dispatch.Bind("SETBG", [this](PrimitiveCall& call) { SetBG(call); });
  dispatch.Bind("TEXTCOLOR", [this](PrimitiveCall& call) { TextColor(call); });
  dispatch.Bind("TEXTBACKGROUND", [this](PrimitiveCall& call) { TextBackground(call); });
}

void Colours::SetPC(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "SETPC")) return;
  Turtle& turtle = context_.turtle;
  Surface& surface = context_.Picture1;
  const double number = context_.arguments.Number(call.Rest);
  SkipOnFailure([&] { turtle.PenColor = ToByte(ColourCode(number)); });
  if (turtle.PenState == 1 || turtle.PenState == 2) {
    SkipOnFailure([&] { surface.SetForeColor(QBColor(turtle.PenColor)); });
  }
  // Before the first SETBG the background's colour is not a code: this fails then, and the pen goes on erasing.
  if (turtle.PenState == 3) SkipOnFailure([&] { surface.SetForeColor(QBColor(turtle.BGColor)); });
  SkipOnFailure([&] {
    double code = number;
    turtleFigure_.TurtleColor(code);
  });
  SelectSquare(number);
  context_.controls.Label15.Caption = "Setpc " + Str(number);
}

void Colours::SetBG(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "SETBG")) return;
  Turtle& turtle = context_.turtle;
  Surface& surface = context_.Picture1;
  const double number = context_.arguments.Number(call.Rest);
  // A negative code is kept, and every use of it fails until the next SETBG.
  SkipOnFailure([&] { turtle.BGColor = ColourCode(number); });
  SkipOnFailure([&] { surface.SetBackColor(QBColor(turtle.BGColor)); });
  if (turtle.PenState == 1) SkipOnFailure([&] { surface.SetForeColor(QBColor(turtle.PenColor)); });
  if (turtle.PenState == 3) SkipOnFailure([&] { surface.SetForeColor(QBColor(turtle.BGColor)); });
  SelectSquare(number);
  context_.controls.Label15.Caption = "Setbg " + Str(number);
}

void Colours::TextColor(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "TEXTCOLOR")) return;
  const double number = context_.arguments.Number(call.Rest);
  ForEachTextControl(context_.controls, [&](auto& control) { control.ForeColor = QBColor(ColourCode(number)); });
  SelectSquare(number);
  context_.controls.Label15.Caption = "TEXTCOLOR " + Str(number);
}

void Colours::TextBackground(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "TEXTBACKGROUND")) return;
  const double number = context_.arguments.Number(call.Rest);
  ForEachTextControl(context_.controls, [&](auto& control) { control.BackColor = QBColor(ColourCode(number)); });
  SelectSquare(number);
  // Not this primitive's own word: "Apply" then sets the text's colour.
  context_.controls.Label15.Caption = "TEXTCOLOR " + Str(number);
}

void Colours::SelectSquare(double number) {
  Controls& controls = context_.controls;
  const auto square = [&]() -> const Label& { return controls.Label13[ToInt16(number)]; };
  for (Shape* frame : {&controls.Shape5, &controls.Shape7}) {
    SkipOnFailure([&] { frame->Left = square().Left; });
    SkipOnFailure([&] { frame->Top = square().Top; });
  }
}

void Colours::FillBack(std::int32_t newBGColor) {
  Surface& surface = context_.Picture1;
  const double height = surface.Height();
  for (int y = 1; y <= height; y += LatticeStep) {
    const std::int16_t width = ToInt16(surface.Width);
    for (int x = 1; x <= width; x += LatticeStep) {
      if (surface.Point(x, y) == QBColor(context_.turtle.BGColor)) surface.PSet(x, y, QBColor(newBGColor));
    }
  }
  context_.turtle.BGColor = newBGColor;
}

}  // namespace zerimo::reference
