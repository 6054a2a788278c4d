#include <gtest/gtest.h>

#include <string>

#include "files/temp_folder.h"
#include "support/whole_system.h"

namespace zerimo {
namespace {

class Form1EventsTest : public testing::Test, protected WholeSystem {};

TEST_F(Form1EventsTest, MouseOverTheSurfaceShowsTheHint) {
  System.MouseMove(System.Picture1, 7680 + 150, 5760 - 200);
  EXPECT_EQ(System.Picture1.ToolTipText, "MouseX= 3 MouseY= 4   New Dir 37");
}

TEST_F(Form1EventsTest, MouseOverTheSurfaceAtAResolutionOf0EndsTheSystem) {
  Controls.Text3.Text = "";
  System.Change(Controls.Text3);
  EXPECT_THROW(System.MouseMove(System.Picture1, 100, 100), Failure);
}

TEST_F(Form1EventsTest, MouseOverThePaletteNotesTheGrabAndTheDropUsesIt) {
  Controls.Label14.BackColor = 255;
  System.MouseMove(Controls.Picture2, 120.5F, 60.5F);
  EXPECT_EQ(Controls.Label14.BackColor, 0xFFFFFF);
  System.DragDrop(Controls.Picture2, 1120.5F, 860);
  EXPECT_EQ(Controls.Picture2.Left, 1000);
  EXPECT_EQ(Controls.Picture2.Top, 800);
}

TEST_F(Form1EventsTest, MouseOverASquareMarksIt) {
  System.MouseMove(Controls.Label13[7], 0, 0);
  for (int square = 0; square < 16; ++square) EXPECT_EQ(Controls.Label13[square].BorderStyle, square == 7 ? 0 : 1);
}

TEST_F(Form1EventsTest, MouseOverApplyTurnsItRed) {
  System.MouseMove(Controls.Label14, 0, 0);
  EXPECT_EQ(Controls.Label14.BackColor, 255);
}

TEST_F(Form1EventsTest, PressOnASquarePreparesACommandAndApplyRunsIt) {
  System.MouseDown(Controls.Label13[4], MouseButton::Left, false, 0, 0);
  EXPECT_EQ(Controls.Label15.Caption, "Setpc 4");
  System.Click(Controls.Label14);
  EXPECT_EQ(System.Turtle.PenColor, 4);
  System.MouseDown(Controls.Label13[2], MouseButton::Right, false, 0, 0);
  EXPECT_EQ(Controls.Label15.Caption, "Setbg 2");
  System.MouseDown(Controls.Label13[2], MouseButton::Left, true, 0, 0);
  EXPECT_EQ(Controls.Label15.Caption, "TEXTCOLOR 2");
  EXPECT_EQ(System.Lines.TempProcNo, 0);
}

TEST_F(Form1EventsTest, BarsColourBackgroundAndPen) {
  Controls.HScroll1[0].Value = 10;
  System.Change(Controls.HScroll1[0]);
  EXPECT_EQ(System.Picture1.BackColor(), 10);
  Controls.HScroll2[2].Value = 0;
  System.Change(Controls.HScroll2[2]);
  EXPECT_EQ(System.Picture1.ForeColor(), 0x00FFFF);
}

TEST_F(Form1EventsTest, PressOnTheFileListShowsThePage) {
  const TempFolder folder;
  folder.Write("ZMHELP/FD", "go forward");
  Controls.File1.FileName = "FD";
  System.MouseDown(Controls.File1, MouseButton::Right, true, 0, 0);
  EXPECT_EQ(Controls.RichTextBox1.Text, "go forward");
  Controls.File1.FileName = "GONE";
  EXPECT_THROW(System.MouseDown(Controls.File1, MouseButton::Left, false, 0, 0), Failure);
}

TEST_F(Form1EventsTest, SlideTickWithoutASlideEndsTheShow) {
  Controls.Timer3.Enabled = true;
  System.Tick(Controls.Timer3);
  EXPECT_FALSE(Controls.Timer3.Enabled);
}

TEST_F(Form1EventsTest, NeitherHideNorClearingTheScreenStopsASlideShow) {
  Type("SLIDESHOW TRIP 1000");
  Type("HIDE");
  Type("CS");
  EXPECT_TRUE(Controls.Timer3.Enabled);
  EXPECT_EQ(Controls.Timer3.Interval, 1000);
}

TEST_F(Form1EventsTest, HelpStaysOpenInItsPlaceWhileTheScreenModesChange) {
  const TempFolder folder;
  folder.Write("ZMHELP/HELP", "welcome");
  for (const char* line : {"HELP", "FS", "TS", "SS"}) {
    Type(line);
    EXPECT_TRUE(Controls.File1.Visible() && Controls.RichTextBox1.Visible()) << line;
    EXPECT_EQ(Controls.RichTextBox1.Height(), 9585) << line;
    EXPECT_EQ(Controls.File1.Height(), 9585 + 150) << line;
  }
  Press(Controls.Text1[0], key::Esc);
  EXPECT_FALSE(Controls.File1.Visible() || Controls.RichTextBox1.Visible());
}

TEST_F(Form1EventsTest, TypingInTheEditorChangesNothingElse) {
  Controls.Text2.Text = "3";
  System.Change(Controls.Text2);
  EXPECT_EQ(System.Turtle.Resolution, 50);
  EXPECT_EQ(System.Picture1.DrawWidth(), 4);
  EXPECT_EQ(System.Store.Line(1), "");
}

TEST_F(Form1EventsTest, OtherControlsDoNothingWithTheMouse) {
  const std::string pending = Controls.Label15.Caption;
  for (Control* control : {static_cast<Control*>(&Controls.Label16), static_cast<Control*>(&Controls.Prompt),
                           static_cast<Control*>(&Controls.Text1[2]), static_cast<Control*>(&Controls.Label20[1])}) {
    System.Click(*control);
    System.MouseMove(*control, 10, 10);
    System.MouseDown(*control, MouseButton::Left, false, 10, 10);
  }
  EXPECT_EQ(Controls.Label15.Caption, pending);
  EXPECT_EQ(System.Picture1.ToolTipText, "");
  EXPECT_EQ(System.Mouse.PaletteGrabX, 0);
  EXPECT_EQ(Focus(), "Text1(0)");
  EXPECT_FALSE(Controls.Timer2.Enabled);
}

}  // namespace
}  // namespace zerimo
