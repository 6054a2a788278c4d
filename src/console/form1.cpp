#include "console/form1.h"

#include "base/failure.h"
#include "base/numbers.h"

namespace zerimo {

namespace {

/// What the start leaves free below the command panel and below the editor.
constexpr float BottomStrip = 400;

}  // namespace

Form1::Form1(ScreenSize screen, const std::string& appFolder, Services& services, RunWatch& watch, Canvas& canvas)
    : Controls(screen),
      Picture1("Picture1", canvas),
      Store(Controls.List3),
      Place(appFolder),
      Evaluation(watch),
      Names(Store, Path, Turtle, Controls.Form1, Controls.List2, Evaluation, watch),
      Stages(Names, Evaluation),
      Locals(Store, Path, Names),
      Repeats(Store, Names, Evaluation, services, Controls.Label17, Controls.Label18),
      Conditions(Store, Names, Evaluation),
      Primitives(services),
      Run(Store, Path, Primitives, Names, Locals, Conditions, services, watch, Controls.Label19),
      Lines(Store, Repeats, Run, Names, Controls.List1),
      Figure(Controls),
      Drawing{Turtle, Picture1, Controls, Stages, services, Primitives},
      Places(Drawing),
      Moves(Drawing),
      Colouring(Drawing, Figure),
      Figures(Drawing),
      Floods(Drawing),
      Writing(Drawing),
      Mouse(Drawing),
      Photos(Picture1, Controls, Stages, Primitives, Place),
      Files(Store, Repeats, Names, Controls, services, Primitives, Place, Photos),
      Edit(Store, Repeats, Controls, Primitives),
      Save(Controls, Store, services, Files),
      Help(Controls, services, Primitives),
      General(Primitives, services, Controls, Picture1, Turtle, Stages, Evaluation),
      Status(Controls, Turtle, services),
      Modes(Primitives, Controls, Picture1, Store, services, Files, Save),
      Panel(Controls, Picture1, Turtle, Path, Names, Repeats),
      Keyboard(Controls, Primitives, services, Lines, Modes, Edit, Save, Help) {
  Picture1.CreateCanvas(screen.Width, screen.Height);
  BindPrimitives();
}

void Form1::BindPrimitives() {
  General.Bind();
  Places.Bind();
  Moves.Bind();
  Colouring.Bind();
  Figures.Bind();
  Floods.Bind();
  Writing.Bind();
  Modes.Bind();
  Files.Bind();
  Edit.Bind();
  Photos.Bind();
  Help.Bind();
  Primitives.TurtlePos = [this] { Figure.TurtlePos(Turtle.TurtleX, Turtle.TurtleY, Turtle.TurtleDir); };
  Primitives.TitleText = [this] { Status.TitleText(); };
}

void Form1::Load() {
  DefaultValue();
  InitialGraphicsScreen();
  Turtle.TurtleDir = 0;
  Turtle.TurtleX = static_cast<double>(Controls.Screen.Width / 2);
  Turtle.TurtleY = static_cast<double>(Controls.Screen.Height / 2);
  Figure.TurtlePos(Turtle.TurtleX, Turtle.TurtleY, Turtle.TurtleDir);
}

void Form1::DefaultValue() {
  const ScreenSize& screen = Controls.Screen;
  Path.CurProcName.clear();
  Store.FileDataCount = 0;
  Path.SetCtrlStr(".");
  Turtle.PenState = 1;
  Primitives.DetailsOn = false;
  Picture1.Left = 0;
  Picture1.Width = screen.Width;
  Picture1.Top = 0;
  Picture1.SetHeight(screen.Height - Controls.Picture3.Height());
  Turtle.Resolution = 50;
  Controls.Text3.Text = "50";
  Turtle.FenceMode = 1;
  for (int code = 0; code < Controls.Label13.Size; ++code) Controls.Label13[code].BackColor = QBColor(code);
  for (Shape* frame : {&Controls.Shape5, &Controls.Shape7}) {
    frame->Width = Controls.Label13[0].Width;
    frame->SetHeight(Controls.Label13[0].Height());
  }
  Controls.Picture2.Hide();
  Controls.Label8.BackColor = QBColor(15);
  Controls.Label9.BackColor = QBColor(0);
  Controls.Text4.Text = "1";
  Controls.Frame1.Left = screen.Width / 2 - Controls.Frame1.Width / 2;
  Controls.Frame1.Top = screen.Height / 2 - Controls.Frame1.Height() / 2 - 4 * Controls.Text1[0].Height();
  // The box Text4 goes on showing 1: the two differ at start.
  Picture1.SetDrawWidth(4);
  PlaceOverlays();
}

void Form1::PlaceOverlays() {
  const ScreenSize& screen = Controls.Screen;
  Controls.Image1.Left = 0;
  Controls.Image1.Top = 0;
  Controls.Image1.Width = Picture1.Width;
  Controls.Image1.SetHeight(Picture1.Height());
  Picture1.SetFontSize(12);
  Picture1.SetForeColor(QBColor(15));
  Controls.Text2.Hide();
  Controls.Text2.Left = 0;
  Controls.Text2.Top = 0;
  Controls.Text2.Width = screen.Width;
  Controls.Text2.SetHeight(screen.Height - BottomStrip);
  Controls.Text2.BackColor = QBColor(9);
  Controls.Text2.ForeColor = QBColor(15);
  LightLine& vertical = Controls.Line5;
  LightLine& horizontal = Controls.Line6;
  vertical.Hide();
  horizontal.Hide();
  vertical.X1 = vertical.X2 = Picture1.Width / 2;
  vertical.Y1 = 0;
  vertical.Y2 = Picture1.Height();
  horizontal.X1 = 0;
  horizontal.X2 = Picture1.Width;
  horizontal.Y1 = horizontal.Y2 = screen.Height / 2;
  Turtle.PenColor = 15;
  // The raw colour value, which is no code yet.
  Turtle.BGColor = Picture1.BackColor();
  Controls.Frame1.Hide();
  Controls.RichTextBox1.Hide();
  Controls.RichTextBox1.Left = Controls.File1.Width;
  Controls.RichTextBox1.Top = 0;
  Controls.RichTextBox1.Width = Picture1.Width - Controls.File1.Width;
  Controls.RichTextBox1.SetHeight(Picture1.Height());
  Controls.File1.Hide();
  Controls.File1.Left = 0;
  Controls.File1.Top = 0;
  Controls.File1.SetHeight(Controls.RichTextBox1.Height() + 150);
  Controls.List4.Hide();
  Controls.List4.Left = 0;
  Controls.List4.Top = 0;
  Controls.List4.Width = Picture1.Width;
  Controls.List4.SetHeight(Picture1.Height() + 200);
}

void Form1::InitialGraphicsScreen() {
  Controls.Form1.Left = 0;
  Controls.Form1.Top = 0;
  Controls.Form1.Width = Controls.Screen.Width;
  Controls.Form1.SetHeight(Controls.Screen.Height);
  Controls.Picture3.Left = 0;
  Controls.Picture3.Width = Controls.Form1.Width;
  Controls.Picture3.Top = Controls.Form1.Height() - Controls.Picture3.Height() - BottomStrip;
  for (int row = 0; row < Controls.Text1.Size; ++row) {
    Controls.Text1[row].Width = Controls.Picture3.Width;
    PassOver([&] { Controls.Text1[row].BackColor = RGB(0, 0, ToInt16(200 + 15 * row)); });
    PassOver([&] { Controls.Text1[row].ForeColor = RGB(255, 0, 0); });
  }
  PassOver([&] { Controls.Prompt.BackColor = RGB(0, 0, 200); });
  Controls.Label20[0].Top = 0;
  for (int index = 1; index < Controls.Label20.Size; ++index) {
    const Label& above = Controls.Label20[index - 1];
    Controls.Label20[index].Left = 0;
    Controls.Label20[index].Top = above.Top + above.Height();
  }
}

}  // namespace zerimo
