#include "controls/controls.h"

#include <algorithm>

#include "base/failure.h"

namespace zerimo {

namespace {

void Place(Control& control, float left, float top, float width, float height) {
  control.Left = left;
  control.Top = top;
  control.Width = width;
  control.SetHeight(height);
}

}  // namespace

Colour QBColor(int code) {
  if (code < 0 || code > 15) throw Failure(FailureKind::InvalidArgument);
  return ColoursOfCodes[static_cast<std::size_t>(code)];
}

Colour RGB(std::int16_t red, std::int16_t green, std::int16_t blue) {
  if (red < 0 || green < 0 || blue < 0) throw Failure(FailureKind::InvalidArgument);
  const auto part = [](std::int16_t value) { return std::min<Colour>(value, 255); };
  return part(red) + 256 * part(green) + 65536 * part(blue);
}

void SubscriptFailure() { throw Failure(FailureKind::SubscriptOutOfRange); }

Controls::Controls(ScreenSize screen) : Screen(screen) {
  Place(Form1, 0, 0, screen.Width, screen.Height);
  Form1.SetCaption("Zerimo");
  DesignRows();
  DesignSurface();
  DesignDiagnosis();
  DesignPalette();
  Place(File1, 0, 0, 2895, 0);
  File1.Hide();
  RichTextBox1.Hide();
}

void Controls::DesignRows() {
  Place(Picture3, 0, 0, Screen.Width, 1935);
  Picture3.BackColor = 0xC80000;
  for (int row = 0; row < Text1.Size; ++row) {
    Place(Text1[row], 240, static_cast<float>(360 * row), Screen.Width, 375);
    Text1[row].FontSize = 15.75;
  }
  Place(Prompt, 0, 0, 255, 1815);
  Prompt.Text = "?\r\n?\r\n?\r\n?\r\n?";
  Prompt.ForeColor = Yellow;
  Prompt.FontSize = 14.25;
}

void Controls::DesignSurface() {
  const char* const captions[] = {"Welcome to Zerimo", "Vantrel", ("Zerimo Version " ZERIMO_SHORT_VERSION),
                                  "First to Setup your World"};
  for (int index = 0; index < Label20.Size; ++index) {
    Place(Label20[index], 0, 0, 7200, 480);
    Label20[index].Caption = captions[index];
    Label20[index].ForeColor = Yellow;
  }
  Shape2.BorderColor = White;
  for (LightLine* line : {&Line1, &Line2, &Line3}) {
    line->BorderColor = White;
    line->BorderWidth = 2;
  }
  for (LightLine* axis : {&Line5, &Line6}) {
    axis->BorderColor = Yellow;
    axis->Hide();
  }
  List4.FontSize = 12;
  List4.Hide();
  Text2.FontSize = 14;
  Text2.Hide();
}

void Controls::DesignDiagnosis() {
  Frame1.Caption = "Diagnosis";
  Place(Frame1, 0, 0, 10200, 6900);
  Frame1.Hide();
  const char* const captions[] = {"Intermediate Contents", "Variables", "Procedures", "Resolution", "Line Width"};
  for (int index = 0; index < Label12.Size; ++index) Label12[index].Caption = captions[index];
  Place(Label12[0], 150, 330, 3900, 270);
  Place(Label12[1], 4200, 330, 2850, 270);
  Place(Label12[2], 7200, 330, 2850, 270);
  Place(List1, 150, 615, 3900, 3450);
  Place(List2, 4200, 615, 2850, 3450);
  Place(List3, 7200, 615, 2850, 3450);
  Place(Label19, 150, 4170, 6900, 300);
  Place(Label17, 7200, 4170, 1350, 300);
  Place(Label18, 8700, 4170, 1350, 300);
  Label19.Caption = "Control String";
  Label17.Caption = "#-";
  Label18.Caption = "$-";
  Place(Label12[3], 150, 4680, 1350, 330);
  Place(Text3, 1500, 4650, 1200, 375);
  Place(Label12[4], 150, 5160, 1350, 330);
  Place(Text4, 1500, 5130, 1200, 375);
  Place(Check1, 150, 5610, 2550, 375);
  Check1.Caption = "Co-ordinates";
  Place(Command2, 150, 6210, 2550, 450);
  Command2.Caption = "Refresh";
  Place(Command1, 9675, 0, 375, 285);
  Command1.Caption = "X";
  Place(Label10, 2925, 4680, 2700, 270);
  Label10.Caption = "Back Color";
  Place(Label9, 2925, 5010, 555, 1650);
  Label9.BackColor = 0;
  Place(Label11, 6600, 4680, 2700, 270);
  Label11.Caption = "Pen Color";
  Place(Label8, 6600, 5010, 555, 1650);
  Label8.BackColor = White;
  for (int index = 0; index < HScroll1.Size; ++index) {
    const auto top = static_cast<float>(5010 + 600 * index);
    Place(HScroll1[index], 3630, top, 2745, 450);
    Place(HScroll2[index], 7305, top, 2745, 450);
    HScroll2[index].Value = ScrollBar::Greatest;
  }
}

void Controls::DesignPalette() {
  Place(Picture2, Screen.Width - 2550, 600, 2520, 3615);
  Picture2.Hide();
  Place(Label16, 0, 0, 2520, 315);
  Label16.Caption = "  Pallette";
  Label16.ForeColor = Yellow;
  Label16.BackColor = Blue;
  Button* const buttons[] = {&Command4, &Command5, &Command3};
  const char* const captions[] = {"^", "v", "X"};
  for (int index = 0; index < 3; ++index) {
    Place(*buttons[index], static_cast<float>(1575 + 315 * index), 15, 285, 285);
    buttons[index]->Caption = captions[index];
  }
  for (int index = 0; index < Label13.Size; ++index) {
    const int column = index % 4;
    const int row = index / 4;
    Place(Label13[index], static_cast<float>(120 + 585 * column), static_cast<float>(435 + 585 * row), 525, 525);
    Label13[index].BorderStyle = Border::Single;
  }
  Shape5.BorderColor = Red;
  Shape5.BorderWidth = 3;
  Shape7.BorderColor = Green;
  for (Shape* frame : {&Shape5, &Shape7}) {
    frame->Left = Label13[15].Left;
    frame->Top = Label13[15].Top;
  }
  Place(Label15, 120, 2835, 2280, 285);
  Label15.Caption = "Setpc 15";
  Place(Label14, 120, 3180, 2280, 315);
  Label14.Caption = "Apply";
  Label14.BackColor = White;
}

}  // namespace zerimo
