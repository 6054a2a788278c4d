#include <gtest/gtest.h>

#include <string>

#include "support/whole_system.h"

namespace zerimo {
namespace {

class Form1EventsTest : public testing::Test, protected WholeSystem {};

TEST_F(Form1EventsTest, MouseOverTheSurfaceShowsTheHint) {
  System.MouseMove(System.Picture1, 7680 + 150, 5760 - 200);
  EXPECT_EQ(System.Picture1.ToolTipText, "MouseX= 3 MouseY= 4   New Dir 37");
}

TEST_F(Form1EventsTest, MouseOverTheSurfaceAtAResolutionOf0EndsTheSystem) {
  controls.Text3.Text = "";
  System.Change(controls.Text3);
  EXPECT_THROW(System.MouseMove(System.Picture1, 100, 100), Failure);
}

TEST_F(Form1EventsTest, MouseOverThePaletteNotesTheGrabAndTheDropUsesIt) {
  controls.Label14.BackColor = 255;
  System.MouseMove(controls.Picture2, 120.5F, 60.5F);
  EXPECT_EQ(controls.Label14.BackColor, 0xFFFFFF);
  System.DragDrop(controls.Picture2, 1120.5F, 860);
  EXPECT_EQ(controls.Picture2.Left, 1000);
  EXPECT_EQ(controls.Picture2.Top, 800);
}

TEST_F(Form1EventsTest, MouseOverASquareMarksIt) {
  System.MouseMove(controls.Label13[7], 0, 0);
  for (int square = 0; square < 16; ++square)
    EXPECT_EQ(controls.Label13[square].BorderStyle, square == 7 ? Border::None : Border::Single);
}

TEST_F(Form1EventsTest, MouseOverApplyTurnsItRed) {
  System.MouseMove(controls.Label14, 0, 0);
  EXPECT_EQ(controls.Label14.BackColor, 255);
}

TEST_F(Form1EventsTest, PressOnASquarePreparesACommandAndApplyRunsIt) {
  System.MouseDown(controls.Label13[4], MouseButton::Left, false, 0, 0);
  EXPECT_EQ(controls.Label15.Caption, "Setpc 4");
  System.Click(controls.Label14);
  EXPECT_EQ(System.turtle.PenColor, 4);
  System.MouseDown(controls.Label13[2], MouseButton::Right, false, 0, 0);
  EXPECT_EQ(controls.Label15.Caption, "Setbg 2");
  System.MouseDown(controls.Label13[2], MouseButton::Left, true, 0, 0);
  EXPECT_EQ(controls.Label15.Caption, "TEXTCOLOR 2");
  EXPECT_EQ(System.interpreter.typedLines.TempProcNo, 0);
}

TEST_F(Form1EventsTest, BarsColourBackgroundAndPen) {
  controls.HScroll1[0].Value = 10;
  System.Change(controls.HScroll1[0]);
  EXPECT_EQ(System.Picture1.BackColor(), 10);
  controls.HScroll2[2].Value = 0;
  System.Change(controls.HScroll2[2]);
  EXPECT_EQ(System.Picture1.ForeColor(), 0x00FFFF);
}

TEST_F(Form1EventsTest, PressOnTheFileListShowsThePage) {
  folder.Write("ZMHELP/FD", "go forward");
  controls.File1.FileName = "FD";
  System.MouseDown(controls.File1, MouseButton::Right, true, 0, 0);
  EXPECT_EQ(controls.RichTextBox1.Text, "go forward");
  controls.File1.FileName = "GONE";
  EXPECT_THROW(System.MouseDown(controls.File1, MouseButton::Left, false, 0, 0), Failure);
}

TEST_F(Form1EventsTest, SlideTickWithoutASlideEndsTheShow) {
  controls.Timer3.Enabled = true;
  System.Tick(controls.Timer3);
  EXPECT_FALSE(controls.Timer3.Enabled);
}

TEST_F(Form1EventsTest, NeitherHideNorClearingTheScreenStopsASlideShow) {
  Type("SLIDESHOW TRIP 1000");
  Type("HIDE");
  Type("CS");
  EXPECT_TRUE(controls.Timer3.Enabled);
  EXPECT_EQ(controls.Timer3.Interval, 1000);
}

TEST_F(Form1EventsTest, HelpStaysOpenInItsPlaceWhileTheScreenModesChange) {
  folder.Write("ZMHELP/HELP", "welcome");
  for (const char* line : {"HELP", "FS", "TS", "SS"}) {
    Type(line);
    EXPECT_TRUE(controls.File1.Visible() && controls.RichTextBox1.Visible()) << line;
    EXPECT_EQ(controls.RichTextBox1.Height(), 9585) << line;
    EXPECT_EQ(controls.File1.Height(), 9585 + 150) << line;
  }
  Press(controls.Text1[0], key::Esc);
  EXPECT_FALSE(controls.File1.Visible() || controls.RichTextBox1.Visible());
}

TEST_F(Form1EventsTest, TypingInTheEditorChangesNothingElse) {
  controls.Text2.Text = "3";
  System.Change(controls.Text2);
  EXPECT_EQ(System.turtle.Resolution, 50);
  EXPECT_EQ(System.Picture1.DrawWidth(), 4);
  EXPECT_EQ(System.interpreter.store.Line(1), "");
}

TEST_F(Form1EventsTest, OtherControlsDoNothingWithTheMouse) {
  const std::string pending = controls.Label15.Caption;
  for (Control* control : {static_cast<Control*>(&controls.Label16), static_cast<Control*>(&controls.Prompt),
                           static_cast<Control*>(&controls.Text1[2]), static_cast<Control*>(&controls.Label20[1])}) {
    System.Click(*control);
    System.MouseMove(*control, 10, 10);
    System.MouseDown(*control, MouseButton::Left, false, 10, 10);
  }
  EXPECT_EQ(controls.Label15.Caption, pending);
  EXPECT_EQ(System.Picture1.ToolTipText, "");
  EXPECT_EQ(System.graphics.palette.PaletteGrabX, 0);
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_FALSE(controls.Timer2.Enabled);
}

}  // namespace
}  // namespace zerimo
