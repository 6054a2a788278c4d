#include "console/form1.h"

#include <utility>

#include "base/failure.h"
#include "base/numbers.h"

namespace zerimo {

namespace {

/// What the start leaves free below the command panel and below the editor.
constexpr float BottomStrip = 400;

}  // namespace

Form1::Form1(ScreenSize screen, Folders givenFolders, Services& services, Watch& watch, Canvas& canvas)
    : controls(screen),
      Picture1("Picture1", canvas),
      folders(std::move(givenFolders)),
      interpreter({services, watch, controls, turtle}),
      context_{{services, watch, controls, turtle}, Picture1, interpreter.arguments, interpreter.dispatch},
      graphics(context_),
      files({interpreter, controls, services, folders}, Picture1),
      generalPrimitives(context_, interpreter.arithmetic, folders),
      statusLine(controls, turtle, services),
      screenModes(context_, interpreter.store, files),
      diagnosis(context_, interpreter),
      keys(context_, interpreter.typedLines, screenModes, files) {
  Picture1.CreateCanvas(screen.Width, screen.Height);
  BindPrimitives();
}

void Form1::BindPrimitives() {
  generalPrimitives.Bind();
  graphics.Bind();
  screenModes.Bind();
  files.Bind();
  interpreter.dispatch.TurtlePos = [this] {
    graphics.turtleFigure.TurtlePos(turtle.TurtleX, turtle.TurtleY, turtle.TurtleDir);
  };
  interpreter.dispatch.TitleText = [this] { statusLine.TitleText(); };
}

void Form1::Load() {
  DefaultValue();
  InitialGraphicsScreen();
  turtle.TurtleDir = 0;
  turtle.TurtleX = static_cast<double>(controls.Screen.Width / 2);
  turtle.TurtleY = static_cast<double>(controls.Screen.Height / 2);
  graphics.turtleFigure.TurtlePos(turtle.TurtleX, turtle.TurtleY, turtle.TurtleDir);
}

void Form1::DefaultValue() {
  const ScreenSize& screen = controls.Screen;
  interpreter.controlPath.CurProcName.clear();
  interpreter.store.FileDataCount = 0;
  interpreter.controlPath.SetCtrlStr(".");
  turtle.PenState = PenPosition::Down;
  interpreter.dispatch.DetailsOn = false;
  Picture1.Left = 0;
  Picture1.Width = screen.Width;
  Picture1.Top = 0;
  Picture1.SetHeight(screen.Height - controls.Picture3.Height());
  turtle.Resolution = 50;
  controls.Text3.Text = "50";
  turtle.FenceMode = TurtleBounds::Window;
  for (int code = 0; code < controls.Label13.Size; ++code) controls.Label13[code].BackColor = QBColor(code);
  for (Shape* frame : {&controls.Shape5, &controls.Shape7}) {
    frame->Width = controls.Label13[0].Width;
    frame->SetHeight(controls.Label13[0].Height());
  }
  controls.Picture2.Hide();
  controls.Label8.BackColor = QBColor(15);
  controls.Label9.BackColor = QBColor(0);
  controls.Text4.Text = "1";
  controls.Frame1.Left = screen.Width / 2 - controls.Frame1.Width / 2;
  controls.Frame1.Top = screen.Height / 2 - controls.Frame1.Height() / 2 - 4 * controls.Text1[0].Height();
  // The box Text4 still shows 1: the two differ at the start.
  Picture1.SetDrawWidth(4);
  PlaceOverlays();
}

void Form1::PlaceOverlays() {
  const ScreenSize& screen = controls.Screen;
  controls.Image1.Left = 0;
  controls.Image1.Top = 0;
  controls.Image1.Width = Picture1.Width;
  controls.Image1.SetHeight(Picture1.Height());
  Picture1.SetFontSize(12);
  Picture1.SetForeColor(QBColor(15));
  controls.Text2.Hide();
  controls.Text2.Left = 0;
  controls.Text2.Top = 0;
  controls.Text2.Width = screen.Width;
  controls.Text2.SetHeight(screen.Height - BottomStrip);
  controls.Text2.BackColor = QBColor(9);
  controls.Text2.ForeColor = QBColor(15);
  LightLine& vertical = controls.Line5;
  LightLine& horizontal = controls.Line6;
  vertical.Hide();
  horizontal.Hide();
  vertical.X1 = vertical.X2 = Picture1.Width / 2;
  vertical.Y1 = 0;
  vertical.Y2 = Picture1.Height();
  horizontal.X1 = 0;
  horizontal.X2 = Picture1.Width;
  horizontal.Y1 = horizontal.Y2 = screen.Height / 2;
  turtle.PenColor = 15;
  // The raw colour value, not a code yet.
  turtle.BGColor = Picture1.BackColor();
  controls.Frame1.Hide();
  controls.RichTextBox1.Hide();
  controls.RichTextBox1.Left = controls.File1.Width;
  controls.RichTextBox1.Top = 0;
  controls.RichTextBox1.Width = Picture1.Width - controls.File1.Width;
  controls.RichTextBox1.SetHeight(Picture1.Height());
  controls.File1.Hide();
  controls.File1.Left = 0;
  controls.File1.Top = 0;
  controls.File1.SetHeight(controls.RichTextBox1.Height() + 150);
  controls.List4.Hide();
  controls.List4.Left = 0;
  controls.List4.Top = 0;
  controls.List4.Width = Picture1.Width;
  controls.List4.SetHeight(Picture1.Height() + 200);
}

void Form1::InitialGraphicsScreen() {
  controls.Form1.Left = 0;
  controls.Form1.Top = 0;
  controls.Form1.Width = controls.Screen.Width;
  controls.Form1.SetHeight(controls.Screen.Height);
  controls.Picture3.Left = 0;
  controls.Picture3.Width = controls.Form1.Width;
  controls.Picture3.Top = controls.Form1.Height() - controls.Picture3.Height() - BottomStrip;
  for (int row = 0; row < controls.Text1.Size; ++row) {
    controls.Text1[row].Width = controls.Picture3.Width;  // Never fails: there is such a row.
    SkipOnFailure([&] { controls.Text1[row].BackColor = RGB(0, 0, ToInt16(200 + 15 * row)); });
    SkipOnFailure([&] { controls.Text1[row].ForeColor = RGB(255, 0, 0); });
  }
  SkipOnFailure([&] { controls.Prompt.BackColor = RGB(0, 0, 200); });
  controls.Label20[0].Top = 0;  // Never fails, as below: there is such a caption.
  for (int index = 1; index < controls.Label20.Size; ++index) {
    const Label& above = controls.Label20[index - 1];  // Never fails.
    Label& caption = controls.Label20[index];          // Never fails.
    caption.Left = 0;
    caption.Top = above.Top + above.Height();
  }
}

}  // namespace zerimo
