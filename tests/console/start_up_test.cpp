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
  ExpectPlace(controls.Form1, 0, 0, 15360, 11520);
  ExpectPlace(controls.Picture3, 0, 11520 - 1935 - 400, 15360, 1935);
  ExpectPlace(System.Picture1, 0, 0, 15360, 11520 - 1935);
  ExpectPlace(controls.Image1, 0, 0, 15360, 11520 - 1935);
  ExpectPlace(controls.List4, 0, 0, 15360, 11520 - 1935 + 200);
  ExpectPlace(controls.Text2, 0, 0, 15360, 11520 - 400);
  ExpectPlace(controls.RichTextBox1, controls.File1.Width, 0, 15360 - controls.File1.Width, 11520 - 1935);
  ExpectPlace(controls.File1, 0, 0, controls.File1.Width, 11520 - 1935 + 150);
  ExpectPlace(controls.Prompt, 0, 0, 255, 1815);
}

TEST(StartUpOfAnotherScreen, FillsIt) {
  const WholeSystem large({57600, 32400});
  const Controls& controls = large.controls;
  ExpectPlace(controls.Form1, 0, 0, 57600, 32400);
  ExpectPlace(controls.Picture3, 0, 32400 - 1935 - 400, 57600, 1935);
  ExpectPlace(large.System.Picture1, 0, 0, 57600, 32400 - 1935);
  ExpectPlace(controls.Text1[4], 240, 1440, 57600, 375);
  EXPECT_EQ(large.System.turtle.TurtleX, 28800);
  EXPECT_EQ(large.System.turtle.TurtleY, 16200);
}

TEST(StartUpByDesign, OneShotIsOnUntilItFires) {
  const Controls design(ScreenSize{});
  EXPECT_TRUE(design.Timer2.Enabled);
  EXPECT_FALSE(design.Timer3.Enabled);
  EXPECT_FALSE(design.Timer4.Enabled);
  EXPECT_EQ(design.Focus.Focus(), nullptr);
  EXPECT_EQ(design.Form1.Caption(), "Zerimo");
}

TEST_F(StartUp, PlacesTheDiagnosisPanelAboveTheMiddle) {
  EXPECT_EQ(controls.Frame1.Left, 15360 / 2 - controls.Frame1.Width / 2);
  EXPECT_EQ(controls.Frame1.Top, 11520 / 2 - controls.Frame1.Height() / 2 - 4 * 375);
  EXPECT_GE(controls.Frame1.Top, 0);
}

TEST_F(StartUp, ShowsWhatALearnerNeedsAndHidesTheRest) {
  for (const Control* control :
       {static_cast<const Control*>(&controls.Picture3), static_cast<const Control*>(&controls.Image1),
        static_cast<const Control*>(&controls.Shape2), static_cast<const Control*>(&controls.Line1),
        static_cast<const Control*>(&controls.Line2), static_cast<const Control*>(&controls.Line3)}) {
    EXPECT_TRUE(control->Visible()) << control->Name();
  }
  for (const Control* control :
       {static_cast<const Control*>(&controls.List4), static_cast<const Control*>(&controls.Text2),
        static_cast<const Control*>(&controls.Frame1), static_cast<const Control*>(&controls.Picture2),
        static_cast<const Control*>(&controls.File1), static_cast<const Control*>(&controls.RichTextBox1),
        static_cast<const Control*>(&controls.Line5), static_cast<const Control*>(&controls.Line6)}) {
    EXPECT_FALSE(control->Visible()) << control->Name();
  }
  for (int index = 0; index < 4; ++index) EXPECT_TRUE(controls.Label20[index].Visible());
}

TEST_F(StartUp, RowsStandUnderEachOtherInStepsOfBlue) {
  const Colour blues[] = {200, 215, 230, 245, 255};
  for (int row = 0; row < 5; ++row) {
    ExpectPlace(controls.Text1[row], 240, static_cast<float>(360 * row), 15360, 375);
    EXPECT_EQ(controls.Text1[row].Text, "");
    EXPECT_EQ(controls.Text1[row].BackColor, blues[row] * 65536);
    EXPECT_EQ(controls.Text1[row].ForeColor, 255);
    EXPECT_EQ(controls.Text1[row].FontSize, 15.75);
  }
  EXPECT_EQ(controls.Prompt.Text, "?\r\n?\r\n?\r\n?\r\n?");
  EXPECT_EQ(controls.Prompt.BackColor, 200 * 65536);
  EXPECT_EQ(controls.Prompt.ForeColor, 65535);
  EXPECT_EQ(controls.Prompt.FontSize, 14.25);
  EXPECT_EQ(controls.List4.FontSize, 12);
}

TEST_F(StartUp, CaptionsStandUnderEachOtherAtTheTop) {
  const char* const captions[] = {"Welcome to Zerimo", "Vantrel", "Zerimo Version 9.0", "First to Setup your World"};
  float top = 0;
  for (int index = 0; index < 4; ++index) {
    EXPECT_EQ(controls.Label20[index].Caption, captions[index]);
    EXPECT_EQ(controls.Label20[index].Left, 0);
    EXPECT_EQ(controls.Label20[index].Top, top);
    top += controls.Label20[index].Height();
  }
}

TEST_F(StartUp, StateHasItsStartValues) {
  EXPECT_EQ(System.interpreter.controlPath.CtrlStr(), ".");
  EXPECT_EQ(System.interpreter.controlPath.CurProcName, "");
  EXPECT_EQ(System.interpreter.store.FileDataCount, 0);
  EXPECT_FALSE(System.interpreter.dispatch.DetailsOn);
  EXPECT_EQ(System.interpreter.typedLines.TempProcNo, 0);
  EXPECT_EQ(System.interpreter.dispatch.OverflowCount, 0);
  EXPECT_EQ(System.interpreter.typedLines.LastTypedLine, "");
  EXPECT_EQ(System.files.programFiles.CurrentFileName, "");
  EXPECT_FALSE(System.graphics.palette.CoordinatesOn);
  EXPECT_EQ(System.turtle.TurtleX, 7680);
  EXPECT_EQ(System.turtle.TurtleY, 5760);
  EXPECT_EQ(System.turtle.TurtleDir, 0);
  EXPECT_EQ(System.turtle.Resolution, 50);
  EXPECT_EQ(System.turtle.FenceMode, TurtleBounds::Window);
  EXPECT_EQ(System.turtle.PenState, PenPosition::Down);
  EXPECT_EQ(System.turtle.PenColor, 15);
  EXPECT_EQ(System.turtle.BGColor, 8388736);
  EXPECT_EQ(System.interpreter.store.Line(1), "");
}

TEST_F(StartUp, TurtleReadsZeroInTheMiddleOfTheScreenWhichLiesBelowThatOfTheSurface) {
  Type("XCOR");
  Type("YCOR");
  EXPECT_EQ(services.BoxTexts(), std::vector<std::string>({" 0", " 0"}));
  EXPECT_EQ(System.turtle.TurtleY - System.Picture1.Height() / 2, controls.Picture3.Height() / 2);
}

TEST_F(StartUp, SurfaceHasItsStartValues) {
  EXPECT_EQ(System.Picture1.BackColor(), 8388736);
  EXPECT_EQ(System.Picture1.ForeColor(), 0xFFFFFF);
  EXPECT_EQ(System.Picture1.FillStyle(), FillPattern::Solid);
  EXPECT_EQ(System.Picture1.FillColor(), 0);
  EXPECT_EQ(System.Picture1.DrawMode(), DrawingMode::CopyPen);
  EXPECT_EQ(System.Picture1.FontSize(), 12);
}

TEST_F(StartUp, LineWidthIsFourWhileItsBoxShowsOne) {
  EXPECT_EQ(controls.Text3.Text, "50");
  EXPECT_EQ(controls.Text4.Text, "1");
  EXPECT_EQ(System.Picture1.DrawWidth(), 4);
}

TEST_F(StartUp, AxesStandInTheMiddle) {
  EXPECT_EQ(controls.Line5.X1, 7680);
  EXPECT_EQ(controls.Line5.Y1, 0);
  EXPECT_EQ(controls.Line5.X2, 7680);
  EXPECT_EQ(controls.Line5.Y2, 11520 - 1935);
  EXPECT_EQ(controls.Line6.X1, 0);
  EXPECT_EQ(controls.Line6.Y1, 5760);
  EXPECT_EQ(controls.Line6.X2, 15360);
  EXPECT_EQ(controls.Line6.Y2, 5760);
  EXPECT_EQ(controls.Line5.BorderColor, 65535);
}

TEST_F(StartUp, TimersHaveTheirStartValues) {
  EXPECT_FALSE(controls.Timer2.Enabled);
  EXPECT_EQ(controls.Timer2.Interval, 1);
  EXPECT_FALSE(controls.Timer3.Enabled);
  EXPECT_EQ(controls.Timer3.Interval, 1);
  EXPECT_FALSE(controls.Timer4.Enabled);
  EXPECT_EQ(controls.Timer4.Interval, 1000);
}

TEST_F(StartUp, OneShotGivesTheFocusToRow0) { EXPECT_EQ(Focus(), "Text1(0)"); }

TEST_F(StartUp, CaptionIsTheName) { EXPECT_EQ(controls.Form1.Caption(), "Zerimo"); }

TEST_F(StartUp, PaletteAndPreviewsHaveTheirColours) {
  for (int code = 0; code < 16; ++code) EXPECT_EQ(controls.Label13[code].BackColor, QBColor(code));
  EXPECT_EQ(controls.Shape5.Width, controls.Label13[0].Width);
  EXPECT_EQ(controls.Shape7.Height(), controls.Label13[0].Height());
  EXPECT_EQ(controls.Label8.BackColor, 0xFFFFFF);
  EXPECT_EQ(controls.Label9.BackColor, 0);
  EXPECT_EQ(controls.Label15.Caption, "Setpc 15");
  EXPECT_EQ(controls.Label16.Caption, "  Pallette");
  for (int bar = 0; bar < 3; ++bar) {
    EXPECT_EQ(controls.HScroll1[bar].Value, 0);
    EXPECT_EQ(controls.HScroll2[bar].Value, 255);
  }
}

TEST_F(StartUp, EditorIsBrightBlueWithWhiteText) {
  EXPECT_EQ(controls.Text2.BackColor, 0xFF0000);
  EXPECT_EQ(controls.Text2.ForeColor, 0xFFFFFF);
  EXPECT_EQ(controls.Text2.FontSize, 14);
}

TEST_F(StartUp, EveryControlIsFoundByItsName) {
  for (const char* name : {"Form1", "Picture1", "Text1(0)", "Text1(4)", "Label13(15)", "List4", "RichTextBox1"}) {
    const Control* control = System.FindControl(name);
    ASSERT_NE(control, nullptr) << name;
    EXPECT_EQ(control->Name(), name);
  }
  EXPECT_EQ(System.FindControl("Text1(5)"), nullptr);
  EXPECT_EQ(System.FindControl("text1(0)"), nullptr);
  EXPECT_EQ(System.FindTimer("Timer3"), &controls.Timer3);
  EXPECT_EQ(System.FindTimer("Timer1"), nullptr);
}

TEST_F(StartUp, WindowGoesBackToItsCornerWhereverTheUserTouchesIt) {
  const std::function<void()> touches[] = {[this] { System.Click(controls.Image1); },
                                           [this] { System.Click(System.Picture1); }, [this] { System.DragOver(); }};
  for (const auto& touch : touches) {
    controls.Form1.Left = 300;
    controls.Form1.Top = 200;
    touch();
    EXPECT_EQ(controls.Form1.Left, 0);
    EXPECT_EQ(controls.Form1.Top, 0);
  }
}

TEST_F(StartUp, ClickOnTheTitlePictureMovesNoFocus) {
  controls.Focus.SetFocus(controls.Text1[3]);
  System.Click(controls.Image1);
  EXPECT_EQ(Focus(), "Text1(3)");
  EXPECT_FALSE(controls.Timer2.Enabled);
}

TEST_F(StartUp, PaletteButtonsRollAndClose) {
  controls.Picture2.Show();
  System.Click(controls.Command4);
  EXPECT_EQ(controls.Picture2.Height(), controls.Label16.Height());
  EXPECT_EQ(controls.Picture2.Left, 0);
  EXPECT_EQ(controls.Picture2.Top, 0);
  System.Click(controls.Command5);
  EXPECT_EQ(controls.Picture2.Height(), 3615);
  System.Click(controls.Command3);
  EXPECT_FALSE(controls.Picture2.Visible());
}

TEST_F(StartUp, DrawTakesTheTitlePictureAndLeavesTheFourCaptions) {
  Type("DRAW");
  EXPECT_FALSE(controls.Image1.Visible());
  for (int index = 0; index < 4; ++index) EXPECT_TRUE(controls.Label20[index].Visible()) << index;
}

TEST_F(StartUp, CsAndClearscreenTakeTheTitlePictureAndTheCaptions) {
  for (const char* line : {"CS", "CLEARSCREEN"}) {
    WholeSystem fresh;
    fresh.Type(line);
    EXPECT_FALSE(fresh.controls.Image1.Visible()) << line;
    for (int index = 0; index < 4; ++index) EXPECT_FALSE(fresh.controls.Label20[index].Visible()) << line << index;
  }
}

TEST_F(StartUp, CsTwiceHasTheEffectOfOnce) {
  System.interpreter.dispatch.Execute("CS");
  const auto once = EveryProperty();
  System.interpreter.dispatch.Execute("CS");
  EXPECT_EQ(EveryProperty(), once);
}

TEST_F(StartUp, NothingElseTakesTheTitle) {
  for (const char* line : {"FD 10", "CLEAN", "HOME", "SETBG 3", "SHOW GRID", "HIDE", "FS", "SS", "TS", "CT", "EDIT"}) {
    System.interpreter.dispatch.Execute(line);
    EXPECT_TRUE(controls.Image1.Visible()) << line;
    EXPECT_TRUE(controls.Label20[3].Visible()) << line;
  }
}

TEST_F(StartUp, ByeAnsweredNoLeavesEverything) {
  Fill({"TO A", "END"});
  Type("PU");
  services.BoxAnswers.push_back(Answer::No);
  Type("BYE");
  Type("FD 10");
  EXPECT_EQ(System.interpreter.store.Line(1), "TO A");
  EXPECT_EQ(System.turtle.PenState, PenPosition::Up);
  EXPECT_EQ(System.turtle.TurtleY, 5760 - 500);
  EXPECT_TRUE(controls.Image1.Visible());
}

TEST_F(StartUp, ByeAnsweredNoChangesNoControl) {
  Type("SHOW DIA");
  Type("TS");
  const auto before = EveryProperty();
  services.BoxAnswers.push_back(Answer::No);
  System.interpreter.dispatch.Execute("BYE");
  EXPECT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(EveryProperty(), before);
}

TEST_F(StartUp, LeavingIsAskedByByeAndNotByQuit) {
  Type("BYE");
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{"Are You Sure That You Want To Leave Zerimo ?", 4, ""}));
  services.BoxAnswers.push_back(Answer::Yes);
  EXPECT_THROW(Type("BYE"), Ended);
  EXPECT_THROW(Type("QUIT"), Ended);
  EXPECT_EQ(services.Boxes.size(), 2U);
}

}  // namespace
}  // namespace zerimo
