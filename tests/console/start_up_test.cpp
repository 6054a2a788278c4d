#include <gtest/gtest.h>

#include <functional>

#include "support/whole_system.h"

namespace zerimo {
namespace {

class StartUp : public testing::Test, protected WholeSystem {};

void ExpectPlace(const Control& control, float left, float top, float width, float height) {
  EXPECT_EQ(control.Left, left) << control.Name();
  EXPECT_EQ(control.Top, top) << control.Name();
  EXPECT_EQ(control.Width, width) << control.Name();
  EXPECT_EQ(control.Height(), height) << control.Name();
}

TEST_F(StartUp, PlacesTheWindowAndItsPanels) {
  ExpectPlace(Controls.Form1, 0, 0, 15360, 11520);
  ExpectPlace(Controls.Picture3, 0, 11520 - 1935 - 400, 15360, 1935);
  ExpectPlace(System.Picture1, 0, 0, 15360, 11520 - 1935);
  ExpectPlace(Controls.Image1, 0, 0, 15360, 11520 - 1935);
  ExpectPlace(Controls.List4, 0, 0, 15360, 11520 - 1935 + 200);
  ExpectPlace(Controls.Text2, 0, 0, 15360, 11520 - 400);
  ExpectPlace(Controls.RichTextBox1, Controls.File1.Width, 0, 15360 - Controls.File1.Width, 11520 - 1935);
  ExpectPlace(Controls.File1, 0, 0, Controls.File1.Width, 11520 - 1935 + 150);
  ExpectPlace(Controls.Prompt, 0, 0, 255, 1815);
}

TEST(StartUpOfAnotherScreen, FillsIt) {
  const WholeSystem large({57600, 32400});
  const FormControls& controls = large.Controls;
  ExpectPlace(controls.Form1, 0, 0, 57600, 32400);
  ExpectPlace(controls.Picture3, 0, 32400 - 1935 - 400, 57600, 1935);
  ExpectPlace(large.System.Picture1, 0, 0, 57600, 32400 - 1935);
  ExpectPlace(controls.Text1[4], 240, 1440, 57600, 375);
  EXPECT_EQ(large.System.Turtle.TurtleX, 28800);
  EXPECT_EQ(large.System.Turtle.TurtleY, 16200);
}

TEST(StartUpByDesign, OneShotIsOnUntilItFires) {
  const FormControls design(ScreenSize{});
  EXPECT_TRUE(design.Timer2.Enabled);
  EXPECT_FALSE(design.Timer3.Enabled);
  EXPECT_FALSE(design.Timer4.Enabled);
  EXPECT_EQ(design.Focus.Focus(), nullptr);
  EXPECT_EQ(design.Form1.Caption(), "Zerimo");
}

TEST_F(StartUp, PlacesTheDiagnosisPanelAboveTheMiddle) {
  EXPECT_EQ(Controls.Frame1.Left, 15360 / 2 - Controls.Frame1.Width / 2);
  EXPECT_EQ(Controls.Frame1.Top, 11520 / 2 - Controls.Frame1.Height() / 2 - 4 * 375);
  EXPECT_GE(Controls.Frame1.Top, 0);
}

TEST_F(StartUp, ShowsWhatALearnerNeedsAndHidesTheRest) {
  for (const Control* control :
       {static_cast<const Control*>(&Controls.Picture3), static_cast<const Control*>(&Controls.Image1),
        static_cast<const Control*>(&Controls.Shape2), static_cast<const Control*>(&Controls.Line1),
        static_cast<const Control*>(&Controls.Line2), static_cast<const Control*>(&Controls.Line3)}) {
    EXPECT_TRUE(control->Visible()) << control->Name();
  }
  for (const Control* control :
       {static_cast<const Control*>(&Controls.List4), static_cast<const Control*>(&Controls.Text2),
        static_cast<const Control*>(&Controls.Frame1), static_cast<const Control*>(&Controls.Picture2),
        static_cast<const Control*>(&Controls.File1), static_cast<const Control*>(&Controls.RichTextBox1),
        static_cast<const Control*>(&Controls.Line5), static_cast<const Control*>(&Controls.Line6)}) {
    EXPECT_FALSE(control->Visible()) << control->Name();
  }
  for (int index = 0; index < 4; ++index) EXPECT_TRUE(Controls.Label20[index].Visible());
}

TEST_F(StartUp, RowsStandUnderEachOtherInStepsOfBlue) {
  const Colour blues[] = {200, 215, 230, 245, 255};
  for (int row = 0; row < 5; ++row) {
    ExpectPlace(Controls.Text1[row], 240, static_cast<float>(360 * row), 15360, 375);
    EXPECT_EQ(Controls.Text1[row].Text, "");
    EXPECT_EQ(Controls.Text1[row].BackColor, blues[row] * 65536);
    EXPECT_EQ(Controls.Text1[row].ForeColor, 255);
    EXPECT_EQ(Controls.Text1[row].FontSize, 15.75);
  }
  EXPECT_EQ(Controls.Prompt.Text, "?\r\n?\r\n?\r\n?\r\n?");
  EXPECT_EQ(Controls.Prompt.BackColor, 200 * 65536);
  EXPECT_EQ(Controls.Prompt.ForeColor, 65535);
  EXPECT_EQ(Controls.Prompt.FontSize, 14.25);
  EXPECT_EQ(Controls.List4.FontSize, 12);
}

TEST_F(StartUp, CaptionsStandUnderEachOtherAtTheTop) {
  const char* const captions[] = {"Welcome to Zerimo", "Vantrel", "Zerimo Version 9.0", "First to Setup your World"};
  float top = 0;
  for (int index = 0; index < 4; ++index) {
    EXPECT_EQ(Controls.Label20[index].Caption, captions[index]);
    EXPECT_EQ(Controls.Label20[index].Left, 0);
    EXPECT_EQ(Controls.Label20[index].Top, top);
    top += Controls.Label20[index].Height();
  }
}

TEST_F(StartUp, StateHasItsStartValues) {
  EXPECT_EQ(System.Path.CtrlStr(), ".");
  EXPECT_EQ(System.Path.CurProcName, "");
  EXPECT_EQ(System.Store.FileDataCount, 0);
  EXPECT_FALSE(System.Primitives.DetailsOn);
  EXPECT_EQ(System.Lines.TempProcNo, 0);
  EXPECT_EQ(System.Primitives.OverflowCount, 0);
  EXPECT_EQ(System.Lines.LastTypedLine, "");
  EXPECT_EQ(System.Files.CurrentFileName, "");
  EXPECT_FALSE(System.Mouse.CoordinatesOn);
  EXPECT_EQ(System.Turtle.TurtleX, 7680);
  EXPECT_EQ(System.Turtle.TurtleY, 5760);
  EXPECT_EQ(System.Turtle.TurtleDir, 0);
  EXPECT_EQ(System.Turtle.Resolution, 50);
  EXPECT_EQ(System.Turtle.FenceMode, 1);
  EXPECT_EQ(System.Turtle.PenState, 1);
  EXPECT_EQ(System.Turtle.PenColor, 15);
  EXPECT_EQ(System.Turtle.BGColor, 8388736);
  EXPECT_EQ(System.Store.Line(1), "");
}

TEST_F(StartUp, TurtleReadsZeroInTheMiddleOfTheScreenWhichLiesBelowThatOfTheSurface) {
  Type("XCOR");
  Type("YCOR");
  EXPECT_EQ(Desktop.BoxTexts(), std::vector<std::string>({" 0", " 0"}));
  EXPECT_EQ(System.Turtle.TurtleY - System.Picture1.Height() / 2, Controls.Picture3.Height() / 2);
}

TEST_F(StartUp, SurfaceHasItsStartValues) {
  EXPECT_EQ(System.Picture1.BackColor(), 8388736);
  EXPECT_EQ(System.Picture1.ForeColor(), 0xFFFFFF);
  EXPECT_EQ(System.Picture1.FillStyle(), 0);
  EXPECT_EQ(System.Picture1.FillColor(), 0);
  EXPECT_EQ(System.Picture1.DrawMode(), 13);
  EXPECT_EQ(System.Picture1.FontSize(), 12);
}

TEST_F(StartUp, LineWidthIsFourWhileItsBoxShowsOne) {
  EXPECT_EQ(Controls.Text3.Text, "50");
  EXPECT_EQ(Controls.Text4.Text, "1");
  EXPECT_EQ(System.Picture1.DrawWidth(), 4);
}

TEST_F(StartUp, AxesStandInTheMiddle) {
  EXPECT_EQ(Controls.Line5.X1, 7680);
  EXPECT_EQ(Controls.Line5.Y1, 0);
  EXPECT_EQ(Controls.Line5.X2, 7680);
  EXPECT_EQ(Controls.Line5.Y2, 11520 - 1935);
  EXPECT_EQ(Controls.Line6.X1, 0);
  EXPECT_EQ(Controls.Line6.Y1, 5760);
  EXPECT_EQ(Controls.Line6.X2, 15360);
  EXPECT_EQ(Controls.Line6.Y2, 5760);
  EXPECT_EQ(Controls.Line5.BorderColor, 65535);
}

TEST_F(StartUp, TimersHaveTheirStartValues) {
  EXPECT_FALSE(Controls.Timer2.Enabled);
  EXPECT_EQ(Controls.Timer2.Interval, 1);
  EXPECT_FALSE(Controls.Timer3.Enabled);
  EXPECT_EQ(Controls.Timer3.Interval, 1);
  EXPECT_FALSE(Controls.Timer4.Enabled);
  EXPECT_EQ(Controls.Timer4.Interval, 1000);
}

TEST_F(StartUp, OneShotGivesTheFocusToRow0) { EXPECT_EQ(Focus(), "Text1(0)"); }

TEST_F(StartUp, CaptionIsTheName) { EXPECT_EQ(Controls.Form1.Caption(), "Zerimo"); }

TEST_F(StartUp, PaletteAndPreviewsHaveTheirColours) {
  for (int code = 0; code < 16; ++code) EXPECT_EQ(Controls.Label13[code].BackColor, QBColor(code));
  EXPECT_EQ(Controls.Shape5.Width, Controls.Label13[0].Width);
  EXPECT_EQ(Controls.Shape7.Height(), Controls.Label13[0].Height());
  EXPECT_EQ(Controls.Label8.BackColor, 0xFFFFFF);
  EXPECT_EQ(Controls.Label9.BackColor, 0);
  EXPECT_EQ(Controls.Label15.Caption, "Setpc 15");
  EXPECT_EQ(Controls.Label16.Caption, "  Pallette");
  for (int bar = 0; bar < 3; ++bar) {
    EXPECT_EQ(Controls.HScroll1[bar].Value, 0);
    EXPECT_EQ(Controls.HScroll2[bar].Value, 255);
  }
}

TEST_F(StartUp, EditorIsBrightBlueWithWhiteText) {
  EXPECT_EQ(Controls.Text2.BackColor, 0xFF0000);
  EXPECT_EQ(Controls.Text2.ForeColor, 0xFFFFFF);
  EXPECT_EQ(Controls.Text2.FontSize, 14);
}

TEST_F(StartUp, EveryControlIsFoundByItsName) {
  for (const char* name : {"Form1", "Picture1", "Text1(0)", "Text1(4)", "Label13(15)", "List4", "RichTextBox1"}) {
    const Control* control = System.FindControl(name);
    ASSERT_NE(control, nullptr) << name;
    EXPECT_EQ(control->Name(), name);
  }
  EXPECT_EQ(System.FindControl("Text1(5)"), nullptr);
  EXPECT_EQ(System.FindControl("text1(0)"), nullptr);
  EXPECT_EQ(System.FindTimer("Timer3"), &Controls.Timer3);
  EXPECT_EQ(System.FindTimer("Timer1"), nullptr);
}

TEST_F(StartUp, WindowGoesBackToItsCornerWhereverTheUserTouchesIt) {
  const std::function<void()> touches[] = {[this] { System.Click(Controls.Image1); },
                                           [this] { System.Click(System.Picture1); }, [this] { System.DragOver(); }};
  for (const auto& touch : touches) {
    Controls.Form1.Left = 300;
    Controls.Form1.Top = 200;
    touch();
    EXPECT_EQ(Controls.Form1.Left, 0);
    EXPECT_EQ(Controls.Form1.Top, 0);
  }
}

TEST_F(StartUp, ClickOnTheTitlePictureMovesNoFocus) {
  Controls.Focus.SetFocus(Controls.Text1[3]);
  System.Click(Controls.Image1);
  EXPECT_EQ(Focus(), "Text1(3)");
  EXPECT_FALSE(Controls.Timer2.Enabled);
}

TEST_F(StartUp, PaletteButtonsRollAndClose) {
  Controls.Picture2.Show();
  System.Click(Controls.Command4);
  EXPECT_EQ(Controls.Picture2.Height(), Controls.Label16.Height());
  EXPECT_EQ(Controls.Picture2.Left, 0);
  EXPECT_EQ(Controls.Picture2.Top, 0);
  System.Click(Controls.Command5);
  EXPECT_EQ(Controls.Picture2.Height(), 3615);
  System.Click(Controls.Command3);
  EXPECT_FALSE(Controls.Picture2.Visible());
}

TEST_F(StartUp, DrawTakesTheTitlePictureAndLeavesTheFourCaptions) {
  Type("DRAW");
  EXPECT_FALSE(Controls.Image1.Visible());
  for (int index = 0; index < 4; ++index) EXPECT_TRUE(Controls.Label20[index].Visible()) << index;
}

TEST_F(StartUp, CsAndClearscreenTakeTheTitlePictureAndTheCaptions) {
  for (const char* line : {"CS", "CLEARSCREEN"}) {
    WholeSystem fresh;
    fresh.Type(line);
    EXPECT_FALSE(fresh.Controls.Image1.Visible()) << line;
    for (int index = 0; index < 4; ++index) EXPECT_FALSE(fresh.Controls.Label20[index].Visible()) << line << index;
  }
}

TEST_F(StartUp, CsTwiceHasTheEffectOfOnce) {
  System.Primitives.Execute("CS");
  const auto once = EveryProperty();
  System.Primitives.Execute("CS");
  EXPECT_EQ(EveryProperty(), once);
}

TEST_F(StartUp, NothingElseTakesTheTitle) {
  for (const char* line : {"FD 10", "CLEAN", "HOME", "SETBG 3", "SHOW GRID", "HIDE", "FS", "SS", "TS", "CT", "EDIT"}) {
    System.Primitives.Execute(line);
    EXPECT_TRUE(Controls.Image1.Visible()) << line;
    EXPECT_TRUE(Controls.Label20[3].Visible()) << line;
  }
}

TEST_F(StartUp, ByeAnsweredNoLeavesEverything) {
  Fill({"TO A", "END"});
  Type("PU");
  Desktop.BoxAnswers.push_back(Answer::No);
  Type("BYE");
  Type("FD 10");
  EXPECT_EQ(System.Store.Line(1), "TO A");
  EXPECT_EQ(System.Turtle.PenState, 2);
  EXPECT_EQ(System.Turtle.TurtleY, 5760 - 500);
  EXPECT_TRUE(Controls.Image1.Visible());
}

TEST_F(StartUp, ByeAnsweredNoChangesNoControl) {
  Type("SHOW DIA");
  Type("TS");
  const auto before = EveryProperty();
  Desktop.BoxAnswers.push_back(Answer::No);
  System.Primitives.Execute("BYE");
  EXPECT_EQ(Desktop.Boxes.size(), 1U);
  EXPECT_EQ(EveryProperty(), before);
}

TEST_F(StartUp, LeavingIsAskedByByeAndNotByQuit) {
  Type("BYE");
  ASSERT_EQ(Desktop.Boxes.size(), 1U);
  EXPECT_EQ(Desktop.Boxes[0], (ShownBox{"Are You Sure That You Want To Leave Zerimo ?", 4, ""}));
  Desktop.BoxAnswers.push_back(Answer::Yes);
  EXPECT_THROW(Type("BYE"), Ended);
  EXPECT_THROW(Type("QUIT"), Ended);
  EXPECT_EQ(Desktop.Boxes.size(), 2U);
}

}  // namespace
}  // namespace zerimo
