#include "graphics/palette.h"

#include <cmath>
#include <string>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace zerimo {

namespace {

/// The word that a button chooses, or the empty text.
std::string ChosenWord(MouseButton button, bool shift) {
  if (button == MouseButton::Left) return shift ? "TEXTCOLOR" : "Setpc";
  if (button == MouseButton::Right) return shift ? "TEXTBACKGROUND" : "Setbg";
  return {};
}

Colour ColourOf(const ControlArray<ScrollBar, 3>& bars) {
  return RGB(ToInt16(bars[0].Value), ToInt16(bars[1].Value), ToInt16(bars[2].Value));
}

}  // namespace

void Palette::Picture1MouseMove(float x, float y) {
  const Window& form = context_.controls.Form1;
  const double resolution = context_.turtle.Resolution;
  const double mouseX = Divide(x - form.Width / 2.0, resolution);
  const double mouseY = Divide(form.Height() / 2.0 - y, resolution);
  // Seen from the origin, not from the turtle, and without regard to the quadrant: always between -90 and 90.
  double angle = mouseY != 0 ? std::atan(mouseX / mouseY) : ShownPi / 2;
  angle = angle * 180 / ShownPi;
  context_.Picture1.ToolTipText = "MouseX=" + Str(RoundHalfEven(mouseX)) + " MouseY=" + Str(RoundHalfEven(mouseY)) +
                                  "   New Dir" + Str(RoundHalfEven(angle));
}

void Palette::Picture1Click() {
  Controls& controls = context_.controls;
  controls.Form1.Left = 0;
  controls.Form1.Top = 0;
  int row = 0;
  // Never fails: there is such a row.
  while (row < controls.Text1.Size - 1 && !Trimmed(controls.Text1[row].Text).empty()) ++row;
  // In full screen the rows are hidden and the focus is refused: the system goes on.
  SkipOnFailure([&] { controls.Focus.SetFocus(controls.Text1[row]); });
  controls.Timer2.Enabled = true;
}

void Palette::Picture1DragDrop(Control& source, float x, float y) noexcept {
  source.Left = x - PaletteGrabX;
  source.Top = y - PaletteGrabY;
}

void Palette::Picture2MouseMove(float x, float y) {
  context_.controls.Label14.BackColor = White;
  PaletteGrabX = x;
  PaletteGrabY = ToInt16(y);
}

void Palette::Label13MouseDown(int index, MouseButton button, bool shift) {
  Controls& controls = context_.controls;
  const std::string word = ChosenWord(button, shift);
  for (Shape* frame : {&controls.Shape5, &controls.Shape7}) {
    frame->Left = controls.Label13[index].Left;
    frame->Top = controls.Label13[index].Top;
  }
  Label13MouseMove(index);
  controls.Label15.Caption = word + " " + std::to_string(index);
}

void Palette::Label13MouseMove(int index) {
  Controls& controls = context_.controls;
  for (int square = 0; square < controls.Label13.Size; ++square) controls.Label13[square].BorderStyle = Border::Single;
  controls.Label13[index].BorderStyle = Border::None;
}

void Palette::Label14MouseMove() noexcept { context_.controls.Label14.BackColor = Red; }

void Palette::Label14Click() { context_.dispatch.Execute(UpperCase(Trimmed(context_.controls.Label15.Caption))); }

void Palette::HScroll1Change() {
  const Colour colour = ColourOf(context_.controls.HScroll1);
  // The background's code stays: an erasing pen keeps its colour.
  context_.Picture1.SetBackColor(colour);
  context_.controls.Label9.BackColor = colour;
}

void Palette::HScroll2Change() {
  Controls& controls = context_.controls;
  const Colour colour = ColourOf(controls.HScroll2);
  context_.Picture1.SetForeColor(colour);
  for (LightLine* line : {&controls.Line1, &controls.Line2, &controls.Line3}) line->BorderColor = colour;
  controls.Shape2.BorderColor = colour;
  controls.Label8.BackColor = colour;
}

void Palette::Check1Click() noexcept {
  // Only the flag decides, neither the check mark nor what is visible.
  CoordinatesOn = !CoordinatesOn;
  context_.controls.Line5.SetVisible(CoordinatesOn);
  context_.controls.Line6.SetVisible(CoordinatesOn);
}

}  // namespace zerimo
