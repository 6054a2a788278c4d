#include "console/form1.h"

namespace zerimo {

namespace {

/// The height of the unrolled palette.
constexpr float UnrolledPalette = 3615;

/// The index of a control in an array, or -1.
template <typename Kind, int Count>
int IndexIn(const ControlArray<Kind, Count>& array, const Control& control) noexcept {
  for (int index = 0; index < Count; ++index) {
    if (&array[index] == &control) return index;
  }
  return -1;
}

}  // namespace

void Form1::KeyDown(Control& control, int keyCode) {
  const int row = IndexIn(controls.Text1, control);
  if (row >= 0) keys.Text1KeyDown(row, keyCode);
  if (&control == &controls.List4) keys.List4KeyDown(keyCode);
  if (&control == &Picture1) keys.Picture1KeyDown(keyCode);
  if (&control == &controls.Text2) keys.Text2KeyDown(keyCode);
  if (&control == &controls.RichTextBox1) keys.RichTextBox1KeyDown(keyCode);
  if (&control == &controls.File1) keys.File1KeyDown(keyCode);
  if (&control == &controls.Form1) keys.Form1KeyDown(keyCode);
}

void Form1::Click(Control& control) {
  if (&control == &Picture1) graphics.palette.Picture1Click();
  if (&control == &controls.Image1) DragOver();
  if (&control == &controls.Label14) graphics.palette.Label14Click();
  if (&control == &controls.Check1) {
    controls.Check1.Value = !controls.Check1.Value;
    graphics.palette.Check1Click();
  }
  if (&control == &controls.Command1) diagnosis.Command1Click();
  if (&control == &controls.Command2) diagnosis.Command2Click();
  if (&control == &controls.Command3) controls.Picture2.Hide();
  if (&control == &controls.Command4) {
    controls.Picture2.SetHeight(controls.Label16.Height());
    controls.Picture2.Top = 0;
    controls.Picture2.Left = 0;
  }
  if (&control == &controls.Command5) controls.Picture2.SetHeight(UnrolledPalette);
}

void Form1::MouseMove(Control& control, float x, float y) {
  if (&control == &Picture1) graphics.palette.Picture1MouseMove(x, y);
  if (&control == &controls.Picture2) graphics.palette.Picture2MouseMove(x, y);
  const int square = IndexIn(controls.Label13, control);
  if (square >= 0) graphics.palette.Label13MouseMove(square);
  if (&control == &controls.Label14) graphics.palette.Label14MouseMove();
}

void Form1::MouseDown(Control& control, MouseButton button, bool shift, float, float) {
  const int square = IndexIn(controls.Label13, control);
  if (square >= 0) graphics.palette.Label13MouseDown(square, button, shift);
  if (&control == &controls.File1) files.helpPages.File1MouseDown();
}

void Form1::DragDrop(Control& source, float x, float y) noexcept { graphics.palette.Picture1DragDrop(source, x, y); }

void Form1::DragOver() noexcept {
  controls.Form1.Left = 0;
  controls.Form1.Top = 0;
}

void Form1::Change(Control& control) {
  if (&control == &controls.Text3) diagnosis.Text3Change();
  if (&control == &controls.Text4) diagnosis.Text4Change();
  if (IndexIn(controls.HScroll1, control) >= 0) graphics.palette.HScroll1Change();
  if (IndexIn(controls.HScroll2, control) >= 0) graphics.palette.HScroll2Change();
}

void Form1::Tick(Timer& timer) {
  if (&timer == &controls.Timer2) keys.Timer2Tick();
  if (&timer == &controls.Timer3) files.pictures.Timer3Tick();
  if (&timer == &controls.Timer4) statusLine.Timer4Tick();
}

Control* Form1::FindControl(const std::string& name) {
  Control* found = name == Picture1.Name() ? &Picture1 : nullptr;
  controls.ForEach([&](Control& control) {
    if (control.Name() == name) found = &control;
  });
  return found;
}

Timer* Form1::FindTimer(const std::string& name) noexcept {
  for (Timer* timer : {&controls.Timer2, &controls.Timer3, &controls.Timer4}) {
    if (timer->Name() == name) return timer;
  }
  return nullptr;
}

}  // namespace zerimo
