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
  palette.Picture1MouseMove(GetParam().X, GetParam().Y);
  EXPECT_EQ(Picture1.ToolTipText, GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(turtlePlaces, Hint,
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
  turtle.TurtleX = 3;
  turtle.TurtleDir = 2;
  palette.Picture1MouseMove(6150, 4300);
  EXPECT_EQ(Picture1.ToolTipText, "MouseX= 3 MouseY= 4   New Dir 37");
}

TEST_F(PaletteTest, HintAtAResolutionOfZeroFails) {
  Picture1.ToolTipText = "before";
  turtle.Resolution = 0;
  EXPECT_THROW(palette.Picture1MouseMove(6150, 4300), Failure);
  EXPECT_THROW(palette.Picture1MouseMove(6000, 4500), Failure);
  EXPECT_EQ(Picture1.ToolTipText, "before");
}

// The click on the surface.

TEST_F(PaletteTest, ClickPutsTheWindowBack) {
  controls.Form1.Left = 30;
  controls.Form1.Top = 40;
  palette.Picture1Click();
  EXPECT_EQ(controls.Form1.Left, 0);
  EXPECT_EQ(controls.Form1.Top, 0);
}

TEST_F(PaletteTest, ClickGivesTheFocusToTheFirstEmptyRow) {
  controls.Text1[0].Text = "FD 10";
  controls.Text1[1].Text = "  ";
  palette.Picture1Click();
  EXPECT_EQ(controls.Focus.Focus(), &controls.Text1[1]);
}

TEST_F(PaletteTest, ClickGivesTheFocusToTheLastRowIfTheOthersHaveText) {
  for (int row = 0; row < 4; ++row) controls.Text1[row].Text = "FD 10";
  palette.Picture1Click();
  EXPECT_EQ(controls.Focus.Focus(), &controls.Text1[4]);
}

TEST_F(PaletteTest, ClickSwitchesTheFocusTimerOn) {
  controls.Timer2.Enabled = false;
  palette.Picture1Click();
  EXPECT_TRUE(controls.Timer2.Enabled);
}

TEST_F(PaletteTest, ClickWithHiddenRowsIgnoresTheRefusedFocus) {
  controls.Timer2.Enabled = false;
  controls.Picture3.Hide();
  palette.Picture1Click();
  EXPECT_EQ(controls.Focus.Focus(), nullptr);
  EXPECT_TRUE(controls.Timer2.Enabled);
}

// Dragging.

TEST_F(PaletteTest, DroppedPaletteKeepsTheOffsetOfThePointer) {
  palette.Picture2MouseMove(100.5, 102.5);
  EXPECT_EQ(palette.PaletteGrabX, 100.5F);
  EXPECT_EQ(palette.PaletteGrabY, 102);
  palette.Picture1DragDrop(controls.Picture2, 5000, 4000);
  EXPECT_EQ(controls.Picture2.Left, 4899.5F);
  EXPECT_EQ(controls.Picture2.Top, 3898);
}

TEST_F(PaletteTest, DropBeforeAnyMoveHasNoOffset) {
  palette.Picture1DragDrop(controls.Picture2, 500, 400);
  EXPECT_EQ(controls.Picture2.Left, 500);
  EXPECT_EQ(controls.Picture2.Top, 400);
}

TEST_F(PaletteTest, AnyDroppedControlIsPlaced) {
  palette.Picture2MouseMove(10, 20);
  palette.Picture1DragDrop(controls.Frame1, 500, 400);
  EXPECT_EQ(controls.Frame1.Left, 490);
  EXPECT_EQ(controls.Frame1.Top, 380);
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
  palette.Label13MouseDown(3, GetParam().Button, GetParam().Shift);
  EXPECT_EQ(controls.Label15.Caption, GetParam().Caption);
  EXPECT_EQ(turtle.PenColor, 15);
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
  palette.Label13MouseDown(index, MouseButton::Left, false);
  for (const Shape* frame : {&controls.Shape5, &controls.Shape7}) {
    EXPECT_EQ(frame->Left, controls.Label13[index].Left);
    EXPECT_EQ(frame->Top, controls.Label13[index].Top);
  }
  for (int other = 0; other < 16; ++other)
    EXPECT_EQ(controls.Label13[other].BorderStyle, other == index ? Border::None : Border::Single);
  EXPECT_EQ(controls.Label15.Caption, "Setpc " + std::to_string(index));
}

TEST_P(Square, IsMarkedUnderThePointer) {
  palette.Label13MouseMove((GetParam() + 1) % 16);
  palette.Label13MouseMove(GetParam());
  for (int other = 0; other < 16; ++other)
    EXPECT_EQ(controls.Label13[other].BorderStyle, other == GetParam() ? Border::None : Border::Single);
  EXPECT_EQ(controls.Label15.Caption, "Setpc 15");
}

INSTANTIATE_TEST_SUITE_P(Indexes, Square, testing::Range(0, 16));

// Apply.

TEST_F(PaletteTest, ApplyTurnsRedUnderThePointerAndWhiteOnThePanel) {
  palette.Label14MouseMove();
  EXPECT_EQ(controls.Label14.BackColor, 255);
  palette.Picture2MouseMove(1, 1);
  EXPECT_EQ(controls.Label14.BackColor, 0xFFFFFF);
}

TEST_F(PaletteTest, ApplyRightAfterStartRunsSetPC15) {
  turtle.PenColor = 3;
  palette.Label14Click();
  EXPECT_EQ(turtle.PenColor, 15);
  EXPECT_EQ(controls.Label15.Caption, "Setpc  15");
}

TEST_F(PaletteTest, SecondApplyRunsTheSamePrimitive) {
  palette.Label13MouseDown(4, MouseButton::Right, false);
  palette.Label14Click();
  Picture1.SetBackColor(0);
  palette.Label14Click();
  EXPECT_EQ(Picture1.BackColor(), 128);
}

TEST_F(PaletteTest, SecondApplyAfterTextBackgroundSetsTheTextsColour) {
  const Colour fore = controls.Text1[0].ForeColor;
  palette.Label13MouseDown(3, MouseButton::Right, true);
  palette.Label14Click();
  EXPECT_EQ(controls.Text1[0].BackColor, QBColor(3));
  EXPECT_EQ(controls.Text1[0].ForeColor, fore);
  palette.Label14Click();
  EXPECT_EQ(controls.Text1[0].ForeColor, QBColor(3));
}

TEST_F(PaletteTest, ApplyOfAnEmptyWordDoesNothing) {
  palette.Label13MouseDown(3, MouseButton::Middle, false);
  Recorder.Operations.clear();
  palette.Label14Click();
  EXPECT_EQ(Recorder.Operations, Nothing);
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(controls.Label15.Caption, " 3");
  EXPECT_EQ(Refreshes, 1);
}

// The scroll bars.

TEST_F(PaletteTest, BackgroundBarsWipeThePictureAndKeepTheCode) {
  controls.HScroll1[0].Value = 1;
  controls.HScroll1[1].Value = 2;
  controls.HScroll1[2].Value = 3;
  Recorder.Operations.clear();
  palette.HScroll1Change();
  EXPECT_EQ(Recorder.Operations, Texts{"BackColor=197121"});
  EXPECT_EQ(Pixels.Calls, Texts{"Clear 197121"});
  EXPECT_EQ(controls.Label9.BackColor, 197121);
  EXPECT_EQ(turtle.BGColor, 8388736);
}

TEST_F(PaletteTest, ErasingPenGoesOnWithTheColourThatItHadBeforeTheBars) {
  Do("PE");
  palette.HScroll1Change();
  Do("FD 10");
  EXPECT_EQ(Pixels.LastStroke.Color, 8388736);
}

TEST_F(PaletteTest, PenBarsColourForegroundFigureAndPreview) {
  controls.HScroll2[0].Value = 1;
  controls.HScroll2[1].Value = 2;
  controls.HScroll2[2].Value = 3;
  Recorder.Operations.clear();
  palette.HScroll2Change();
  EXPECT_EQ(Recorder.Operations, Texts{"ForeColor=197121"});
  EXPECT_EQ(controls.Line1.BorderColor, 197121);
  EXPECT_EQ(controls.Line2.BorderColor, 197121);
  EXPECT_EQ(controls.Line3.BorderColor, 197121);
  EXPECT_EQ(controls.Shape2.BorderColor, 197121);
  EXPECT_EQ(controls.Label8.BackColor, 197121);
  EXPECT_EQ(turtle.PenColor, 15);
}

TEST_F(PaletteTest, PenDownBringsTheCodeBackAfterTheBars) {
  controls.HScroll2[0].Value = 0;
  palette.HScroll2Change();
  EXPECT_EQ(Picture1.ForeColor(), 0xFFFF00);
  Do("PD");
  EXPECT_EQ(Picture1.ForeColor(), 0xFFFFFF);
}

TEST_F(PaletteTest, OneBarMovedTakesTheOthersAsTheyStand) {
  controls.HScroll1[1].Value = 255;
  palette.HScroll1Change();
  EXPECT_EQ(Picture1.BackColor(), 0x00FF00);
}

// The axes.

TEST_F(PaletteTest, CheckTurnsTheAxesOnAndOff) {
  palette.Check1Click();
  EXPECT_TRUE(palette.CoordinatesOn);
  EXPECT_TRUE(controls.Line5.Visible());
  EXPECT_TRUE(controls.Line6.Visible());
  palette.Check1Click();
  EXPECT_FALSE(palette.CoordinatesOn);
  EXPECT_FALSE(controls.Line5.Visible());
  EXPECT_FALSE(controls.Line6.Visible());
}

TEST_F(PaletteTest, CheckDoesNotReadItsMark) {
  controls.Check1.Value = false;
  palette.Check1Click();
  EXPECT_TRUE(controls.Line5.Visible());
}

TEST_F(PaletteTest, FirstCheckAfterTheGridLeavesTheAxesOn) {
  controls.Line5.Show();
  controls.Line6.Show();
  palette.Check1Click();
  EXPECT_TRUE(controls.Line5.Visible());
  palette.Check1Click();
  EXPECT_FALSE(controls.Line5.Visible());
}

TEST_F(PaletteTest, HidingTheAxesKeepsTheFlag) {
  palette.Check1Click();
  controls.Line5.Hide();
  controls.Line6.Hide();
  palette.Check1Click();
  EXPECT_FALSE(controls.Line5.Visible());
  EXPECT_FALSE(palette.CoordinatesOn);
}

}  // namespace
}  // namespace zerimo
