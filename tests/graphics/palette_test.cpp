#include "graphics/palette.h"

#include "graphics/drawing_test.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using PaletteTest = DrawingTest;

// The hint.

struct HintRow {
  float X, Y;
  const char* Text;
};

void PrintTo(const HintRow& one, std::ostream* out) { *out << one.X << ", " << one.Y << ", " << Quoted(one.Text); }

class Hint : public DrawingTest, public testing::WithParamInterface<HintRow> {};

TEST_P(Hint, TellsStepsAndHeadingFromTheOrigin) {
  Mouse.Picture1MouseMove(GetParam().X, GetParam().Y);
  EXPECT_EQ(Picture1.ToolTipText, GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(Places, Hint,
                         testing::Values(HintRow{6150, 4300, "MouseX= 3 MouseY= 4   New Dir 37"},
                                         HintRow{6000, 4500, "MouseX= 0 MouseY= 0   New Dir 90"},
                                         HintRow{5850, 4500, "MouseX=-3 MouseY= 0   New Dir 90"},
                                         HintRow{6000, 4700, "MouseX= 0 MouseY=-4   New Dir 0"},
                                         HintRow{6000, 4300, "MouseX= 0 MouseY= 4   New Dir 0"},
                                         HintRow{5850, 4700, "MouseX=-3 MouseY=-4   New Dir 37"},
                                         HintRow{5850, 4300, "MouseX=-3 MouseY= 4   New Dir-37"},
                                         HintRow{6150, 4700, "MouseX= 3 MouseY=-4   New Dir-37"},
                                         HintRow{6025, 4425, "MouseX= 0 MouseY= 2   New Dir 18"},
                                         HintRow{6020, 4480, "MouseX= 0 MouseY= 0   New Dir 45"}));

TEST_F(PaletteTest, HintDoesNotFollowTheTurtle) {
  Turtle.TurtleX = 3;
  Turtle.TurtleDir = 2;
  Mouse.Picture1MouseMove(6150, 4300);
  EXPECT_EQ(Picture1.ToolTipText, "MouseX= 3 MouseY= 4   New Dir 37");
}

TEST_F(PaletteTest, HintAtAResolutionOfZeroFails) {
  Picture1.ToolTipText = "before";
  Turtle.Resolution = 0;
  EXPECT_THROW(Mouse.Picture1MouseMove(6150, 4300), Failure);
  EXPECT_THROW(Mouse.Picture1MouseMove(6000, 4500), Failure);
  EXPECT_EQ(Picture1.ToolTipText, "before");
}

// The click on the surface.

TEST_F(PaletteTest, ClickPutsTheWindowBack) {
  Controls.Form1.Left = 30;
  Controls.Form1.Top = 40;
  Mouse.Picture1Click();
  EXPECT_EQ(Controls.Form1.Left, 0);
  EXPECT_EQ(Controls.Form1.Top, 0);
}

TEST_F(PaletteTest, ClickGivesTheFocusToTheFirstEmptyRow) {
  Controls.Text1[0].Text = "FD 10";
  Controls.Text1[1].Text = "  ";
  Mouse.Picture1Click();
  EXPECT_EQ(Controls.Focus.Focus(), &Controls.Text1[1]);
}

TEST_F(PaletteTest, ClickGivesTheFocusToTheLastRowIfTheOthersHaveText) {
  for (int row = 0; row < 4; ++row) Controls.Text1[row].Text = "FD 10";
  Mouse.Picture1Click();
  EXPECT_EQ(Controls.Focus.Focus(), &Controls.Text1[4]);
}

TEST_F(PaletteTest, ClickSwitchesTheFocusTimerOn) {
  Controls.Timer2.Enabled = false;
  Mouse.Picture1Click();
  EXPECT_TRUE(Controls.Timer2.Enabled);
}

TEST_F(PaletteTest, ClickWithHiddenRowsPassesOverTheRefusedFocus) {
  Controls.Timer2.Enabled = false;
  Controls.Picture3.Hide();
  Mouse.Picture1Click();
  EXPECT_EQ(Controls.Focus.Focus(), nullptr);
  EXPECT_TRUE(Controls.Timer2.Enabled);
}

// Dragging.

TEST_F(PaletteTest, DroppedPaletteKeepsTheOffsetOfThePointer) {
  Mouse.Picture2MouseMove(100.5, 102.5);
  EXPECT_EQ(Mouse.PaletteGrabX, 100.5F);
  EXPECT_EQ(Mouse.PaletteGrabY, 102);
  Mouse.Picture1DragDrop(Controls.Picture2, 5000, 4000);
  EXPECT_EQ(Controls.Picture2.Left, 4899.5F);
  EXPECT_EQ(Controls.Picture2.Top, 3898);
}

TEST_F(PaletteTest, DropBeforeAnyMoveHasNoOffset) {
  Mouse.Picture1DragDrop(Controls.Picture2, 500, 400);
  EXPECT_EQ(Controls.Picture2.Left, 500);
  EXPECT_EQ(Controls.Picture2.Top, 400);
}

TEST_F(PaletteTest, AnyDroppedControlIsPlaced) {
  Mouse.Picture2MouseMove(10, 20);
  Mouse.Picture1DragDrop(Controls.Frame1, 500, 400);
  EXPECT_EQ(Controls.Frame1.Left, 490);
  EXPECT_EQ(Controls.Frame1.Top, 380);
}

// Choosing and marking.

struct Choice {
  MouseButton Button;
  bool Shift;
  const char* Caption;
};

void PrintTo(const Choice& one, std::ostream* out) {
  *out << static_cast<int>(one.Button) << ", " << one.Shift << ", " << Quoted(one.Caption);
}

class ChosenColour : public DrawingTest, public testing::WithParamInterface<Choice> {};

TEST_P(ChosenColour, PreparesACommand) {
  Mouse.Label13MouseDown(3, GetParam().Button, GetParam().Shift);
  EXPECT_EQ(Controls.Label15.Caption, GetParam().Caption);
  EXPECT_EQ(Turtle.PenColor, 15);
}

INSTANTIATE_TEST_SUITE_P(Buttons, ChosenColour,
                         testing::Values(Choice{MouseButton::Left, false, "Setpc 3"},
                                         Choice{MouseButton::Right, false, "Setbg 3"},
                                         Choice{MouseButton::Left, true, "TEXTCOLOR 3"},
                                         Choice{MouseButton::Right, true, "TEXTBACKGROUND 3"},
                                         Choice{MouseButton::Middle, false, " 3"},
                                         Choice{MouseButton::Middle, true, " 3"}));

class Square : public DrawingTest, public testing::WithParamInterface<int> {};

TEST_P(Square, IsFramedMarkedAndNamedWhenChosen) {
  const int index = GetParam();
  Mouse.Label13MouseDown(index, MouseButton::Left, false);
  for (const Shape* frame : {&Controls.Shape5, &Controls.Shape7}) {
    EXPECT_EQ(frame->Left, Controls.Label13[index].Left);
    EXPECT_EQ(frame->Top, Controls.Label13[index].Top);
  }
  for (int other = 0; other < 16; ++other) EXPECT_EQ(Controls.Label13[other].BorderStyle, other == index ? 0 : 1);
  EXPECT_EQ(Controls.Label15.Caption, "Setpc " + std::to_string(index));
}

TEST_P(Square, IsMarkedUnderThePointer) {
  Mouse.Label13MouseMove((GetParam() + 1) % 16);
  Mouse.Label13MouseMove(GetParam());
  for (int other = 0; other < 16; ++other) EXPECT_EQ(Controls.Label13[other].BorderStyle, other == GetParam() ? 0 : 1);
  EXPECT_EQ(Controls.Label15.Caption, "Setpc 15");
}

INSTANTIATE_TEST_SUITE_P(Indexes, Square, testing::Range(0, 16));

// Apply.

TEST_F(PaletteTest, ApplyTurnsRedUnderThePointerAndWhiteOnThePanel) {
  Mouse.Label14MouseMove();
  EXPECT_EQ(Controls.Label14.BackColor, 255);
  Mouse.Picture2MouseMove(1, 1);
  EXPECT_EQ(Controls.Label14.BackColor, 0xFFFFFF);
}

TEST_F(PaletteTest, ApplyRightAfterStartRunsSetPC15) {
  Turtle.PenColor = 3;
  Mouse.Label14Click();
  EXPECT_EQ(Turtle.PenColor, 15);
  EXPECT_EQ(Controls.Label15.Caption, "Setpc  15");
}

TEST_F(PaletteTest, SecondApplyRunsTheSamePrimitive) {
  Mouse.Label13MouseDown(4, MouseButton::Right, false);
  Mouse.Label14Click();
  Picture1.SetBackColor(0);
  Mouse.Label14Click();
  EXPECT_EQ(Picture1.BackColor(), 128);
}

TEST_F(PaletteTest, SecondApplyAfterTextBackgroundSetsTheTextsColour) {
  const Colour fore = Controls.Text1[0].ForeColor;
  Mouse.Label13MouseDown(3, MouseButton::Right, true);
  Mouse.Label14Click();
  EXPECT_EQ(Controls.Text1[0].BackColor, QBColor(3));
  EXPECT_EQ(Controls.Text1[0].ForeColor, fore);
  Mouse.Label14Click();
  EXPECT_EQ(Controls.Text1[0].ForeColor, QBColor(3));
}

TEST_F(PaletteTest, ApplyOfAnEmptyWordDoesNothing) {
  Mouse.Label13MouseDown(3, MouseButton::Middle, false);
  Recorder.Operations.clear();
  Mouse.Label14Click();
  EXPECT_EQ(Recorder.Operations, Nothing);
  EXPECT_TRUE(Desktop.Boxes.empty());
  EXPECT_EQ(Controls.Label15.Caption, " 3");
  EXPECT_EQ(Refreshes, 1);
}

// The scroll bars.

TEST_F(PaletteTest, BackgroundBarsWipeThePictureAndKeepTheCode) {
  Controls.HScroll1[0].Value = 1;
  Controls.HScroll1[1].Value = 2;
  Controls.HScroll1[2].Value = 3;
  Recorder.Operations.clear();
  Mouse.HScroll1Change();
  EXPECT_EQ(Recorder.Operations, Texts{"BackColor=197121"});
  EXPECT_EQ(Pixels.Calls, Texts{"Clear 197121"});
  EXPECT_EQ(Controls.Label9.BackColor, 197121);
  EXPECT_EQ(Turtle.BGColor, 8388736);
}

TEST_F(PaletteTest, ErasingPenGoesOnWithTheColourThatItHadBeforeTheBars) {
  Do("PE");
  Mouse.HScroll1Change();
  Do("FD 10");
  EXPECT_EQ(Pixels.LastStroke.Color, 8388736);
}

TEST_F(PaletteTest, PenBarsColourForegroundFigureAndPreview) {
  Controls.HScroll2[0].Value = 1;
  Controls.HScroll2[1].Value = 2;
  Controls.HScroll2[2].Value = 3;
  Recorder.Operations.clear();
  Mouse.HScroll2Change();
  EXPECT_EQ(Recorder.Operations, Texts{"ForeColor=197121"});
  EXPECT_EQ(Controls.Line1.BorderColor, 197121);
  EXPECT_EQ(Controls.Line2.BorderColor, 197121);
  EXPECT_EQ(Controls.Line3.BorderColor, 197121);
  EXPECT_EQ(Controls.Shape2.BorderColor, 197121);
  EXPECT_EQ(Controls.Label8.BackColor, 197121);
  EXPECT_EQ(Turtle.PenColor, 15);
}

TEST_F(PaletteTest, PenDownBringsTheCodeBackAfterTheBars) {
  Controls.HScroll2[0].Value = 0;
  Mouse.HScroll2Change();
  EXPECT_EQ(Picture1.ForeColor(), 0xFFFF00);
  Do("PD");
  EXPECT_EQ(Picture1.ForeColor(), 0xFFFFFF);
}

TEST_F(PaletteTest, OneBarMovedTakesTheOthersAsTheyStand) {
  Controls.HScroll1[1].Value = 255;
  Mouse.HScroll1Change();
  EXPECT_EQ(Picture1.BackColor(), 0x00FF00);
}

// The axes.

TEST_F(PaletteTest, CheckTurnsTheAxesOnAndOff) {
  Mouse.Check1Click();
  EXPECT_TRUE(Mouse.CoordinatesOn);
  EXPECT_TRUE(Controls.Line5.Visible());
  EXPECT_TRUE(Controls.Line6.Visible());
  Mouse.Check1Click();
  EXPECT_FALSE(Mouse.CoordinatesOn);
  EXPECT_FALSE(Controls.Line5.Visible());
  EXPECT_FALSE(Controls.Line6.Visible());
}

TEST_F(PaletteTest, CheckDoesNotReadItsMark) {
  Controls.Check1.Value = 0;
  Mouse.Check1Click();
  EXPECT_TRUE(Controls.Line5.Visible());
}

TEST_F(PaletteTest, FirstCheckAfterTheGridLeavesTheAxesOn) {
  Controls.Line5.Show();
  Controls.Line6.Show();
  Mouse.Check1Click();
  EXPECT_TRUE(Controls.Line5.Visible());
  Mouse.Check1Click();
  EXPECT_FALSE(Controls.Line5.Visible());
}

TEST_F(PaletteTest, HidingTheAxesKeepsTheFlag) {
  Mouse.Check1Click();
  Controls.Line5.Hide();
  Controls.Line6.Hide();
  Mouse.Check1Click();
  EXPECT_FALSE(Controls.Line5.Visible());
  EXPECT_FALSE(Mouse.CoordinatesOn);
}

}  // namespace
}  // namespace zerimo
