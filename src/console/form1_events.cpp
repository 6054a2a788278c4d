#include "console/form1.h"

namespace zerimo {

namespace {

/// The height of the unrolled palette.
constexpr float UnrolledPalette = 3615;

/// The index of a control in an array, or -1.
template <typename Kind, int Count>
int IndexIn(const ControlArray<Kind, Count>& array, const Control& control) {
  for (int index = 0; index < Count; ++index) {
    if (&array[index] == &control) return index;
  }
  return -1;
}

}  // namespace

void Form1::KeyDown(Control& control, int keyCode) {
  const int row = IndexIn(Controls.Text1, control);
  if (row >= 0) Keyboard.Text1KeyDown(row, keyCode);
  if (&control == &Controls.List4) Keyboard.List4KeyDown(keyCode);
  if (&control == &Picture1) Keyboard.Picture1KeyDown(keyCode);
  if (&control == &Controls.Text2) Keyboard.Text2KeyDown(keyCode);
  if (&control == &Controls.RichTextBox1) Keyboard.RichTextBox1KeyDown(keyCode);
  if (&control == &Controls.File1) Keyboard.File1KeyDown(keyCode);
  if (&control == &Controls.Form1) Keyboard.Form1KeyDown(keyCode);
}

void Form1::Click(Control& control) {
  if (&control == &Picture1) Mouse.Picture1Click();
  if (&control == &Controls.Image1) DragOver();
  if (&control == &Controls.Label14) Mouse.Label14Click();
  if (&control == &Controls.Check1) {
    Controls.Check1.Value = 1 - Controls.Check1.Value;
    Mouse.Check1Click();
  }
  if (&control == &Controls.Command1) Panel.Command1Click();
  if (&control == &Controls.Command2) Panel.Command2Click();
  if (&control == &Controls.Command3) Controls.Picture2.Hide();
  if (&control == &Controls.Command4) {
    Controls.Picture2.SetHeight(Controls.Label16.Height());
    Controls.Picture2.Top = 0;
    Controls.Picture2.Left = 0;
  }
  if (&control == &Controls.Command5) Controls.Picture2.SetHeight(UnrolledPalette);
}

void Form1::MouseMove(Control& control, float x, float y) {
  if (&control == &Picture1) Mouse.Picture1MouseMove(x, y);
  if (&control == &Controls.Picture2) Mouse.Picture2MouseMove(x, y);
  const int square = IndexIn(Controls.Label13, control);
  if (square >= 0) Mouse.Label13MouseMove(square);
  if (&control == &Controls.Label14) Mouse.Label14MouseMove();
}

void Form1::MouseDown(Control& control, MouseButton button, bool shift, float, float) {
  const int square = IndexIn(Controls.Label13, control);
  if (square >= 0) Mouse.Label13MouseDown(square, button, shift);
  if (&control == &Controls.File1) Help.File1MouseDown();
}

void Form1::DragDrop(Control& source, float x, float y) { Mouse.Picture1DragDrop(source, x, y); }

void Form1::DragOver() {
  Controls.Form1.Left = 0;
  Controls.Form1.Top = 0;
}

void Form1::Change(Control& control) {
  if (&control == &Controls.Text3) Panel.Text3Change();
  if (&control == &Controls.Text4) Panel.Text4Change();
  if (IndexIn(Controls.HScroll1, control) >= 0) Mouse.HScroll1Change();
  if (IndexIn(Controls.HScroll2, control) >= 0) Mouse.HScroll2Change();
}

void Form1::Tick(Timer& timer) {
  if (&timer == &Controls.Timer2) Keyboard.Timer2Tick();
  if (&timer == &Controls.Timer3) Photos.Timer3Tick();
  if (&timer == &Controls.Timer4) Status.Timer4Tick();
}

Control* Form1::FindControl(const std::string& name) {
  Control* found = name == Picture1.Name() ? &Picture1 : nullptr;
  Controls.ForEach([&](Control& control) {
    if (control.Name() == name) found = &control;
  });
  return found;
}

Timer* Form1::FindTimer(const std::string& name) {
  for (Timer* timer : {&Controls.Timer2, &Controls.Timer3, &Controls.Timer4}) {
    if (timer->Name() == name) return timer;
  }
  return nullptr;
}

}  // namespace zerimo
