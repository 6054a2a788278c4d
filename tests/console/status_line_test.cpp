#include "console/status_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/whole_system.h"

namespace zerimo {
namespace {

class StatusLineTest : public testing::Test, protected WholeSystem {
 protected:
  const std::string& Caption() const { return controls.Form1.Caption(); }
  bool Shows(const char* text) const { return Caption().find(text) != std::string::npos; }
};

TEST_F(StatusLineTest, DetailsAtHome) {
  Type("SHOW DETAILS");
  EXPECT_EQ(Caption(),
            "Zerimo        [Xpos: 0]  [Ypos: 0]  [RT-Direction:  0]  [Pen Color:White]  [BG Color: ]  [Pen "
            "State:Pen Down]");
}

TEST_F(StatusLineTest, DetailsFollowEveryPrimitive) {
  Type("SHOW DETAILS");
  Type("SETX 0-2");
  EXPECT_TRUE(Shows("[Xpos:-2]")) << Caption();
  Type("PU");
  EXPECT_TRUE(Shows("[Pen State:Pen Up]"));
  Type("PE");
  EXPECT_TRUE(Shows("[Pen State:Pen Erase]"));
  Type("SETBG 14");
  EXPECT_TRUE(Shows("[BG Color: Yellow]"));
  Type("SETPC 3");
  EXPECT_TRUE(Shows("[Pen Color:Sky Blue]"));
  Type("RT 90");
  EXPECT_TRUE(Shows("[RT-Direction:  90]"));
  Type("RT 360");
  EXPECT_TRUE(Shows("[RT-Direction:  450]"));
}

TEST_F(StatusLineTest, LeftOfTheCentreHasNoBlankAfterTheColon) {
  Type("SETX 0-2");
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[Xpos:-2]")) << Caption();
}

TEST_F(StatusLineTest, BelowTheCentreHasNoBlankAfterTheColon) {
  Type("SETY 0-7");
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[Ypos:-7]")) << Caption();
}

TEST_F(StatusLineTest, ARoundedNothingHasNoSign) {
  System.turtle.TurtleX = 7680 - .3;
  System.turtle.TurtleY = 5760 + .5;
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[Xpos: 0]  [Ypos: 0]")) << Caption();
}

TEST_F(StatusLineTest, PenStateTwoIsUp) {
  System.turtle.PenState = PenPosition::Up;
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[Pen State:Pen Up]")) << Caption();
}

TEST_F(StatusLineTest, BackgroundHasNoNameUntilACodeIsSet) {
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[BG Color: ]")) << Caption();
  Type("SETBG 14");
  EXPECT_TRUE(Shows("[BG Color: Yellow]")) << Caption();
}

TEST_F(StatusLineTest, ARightAngleShowsNinety) {
  Type("RT 90");
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[RT-Direction:  90]")) << Caption();
}

TEST_F(StatusLineTest, ATurnToTheLeftIsNegative) {
  Type("LT 90");
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[RT-Direction: -90]")) << Caption();
}

TEST_F(StatusLineTest, RepeatedTurnsAreNotReduced) {
  Type("REPEAT 5 [RT 90]");
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[RT-Direction:  450]")) << Caption();
}

TEST_F(StatusLineTest, DetailsComeOnceForEachPrimitive) {
  std::vector<std::string> captions;
  controls.Form1.OnCaption = [&captions](const std::string& text) { captions.push_back(text); };
  Type("SHOW DETAILS");
  EXPECT_EQ(captions.size(), 1U);
  Type("REPEAT 3 [RT 1 PU]");
  EXPECT_EQ(captions.size(), 7U);
}

TEST_F(StatusLineTest, DetailsStopTheClockAndKeepItsLastTextOnlyUntilTheyWrite) {
  Type("SHOW TIME");
  System.Tick(controls.Timer4);
  Type("SHOW DETAILS");
  EXPECT_FALSE(controls.Timer4.Enabled);
  EXPECT_TRUE(Shows("[Xpos: 0]")) << Caption();
}

TEST_F(StatusLineTest, PositionIsRoundedInSurfaceUnitsAndShowsDecimals) {
  System.turtle.TurtleX = 7680 + 10.5;
  System.turtle.TurtleY = 5760 - 11.5;
  Type("SHOW DETAILS");
  EXPECT_TRUE(Shows("[Xpos: .2]  [Ypos: .24]")) << Caption();
}

TEST_F(StatusLineTest, AHeadingBeyond16BitsLeavesTheCaption) {
  Type("SHOW DETAILS");
  const std::string before = Caption();
  Type("RT 33000");
  EXPECT_EQ(Caption(), before);
}

TEST_F(StatusLineTest, AResolutionOf0LeavesTheCaption) {
  Type("SHOW DETAILS");
  const std::string before = Caption();
  System.turtle.Resolution = 0;
  Type("RT 10");
  EXPECT_EQ(Caption(), before);
}

TEST_F(StatusLineTest, ClockWritesTheTimeOfDay) {
  services.Time = "08:15";
  System.Tick(controls.Timer4);
  EXPECT_EQ(Caption(), "Zerimo [ Time:08:15 ]");
}

TEST_F(StatusLineTest, ClockAndDetailsOverwriteEachOther) {
  Type("SHOW DETAILS");
  Type("SHOW TIME");
  System.Tick(controls.Timer4);
  EXPECT_EQ(Caption(), "Zerimo [ Time:12:34 ]");
  Type("REFRESH");
  EXPECT_TRUE(Caption().starts_with("Zerimo        [Xpos:"));
}

TEST_F(StatusLineTest, HideResetsTheCaption) {
  Type("SHOW TIME");
  System.Tick(controls.Timer4);
  Type("HIDE");
  EXPECT_EQ(Caption(), "Zerimo");
}

TEST(StatusNames, FollowTheTable) {
  const char* const names[] = {"Black",     "Blue",       "Green",     "Sky Blue",   "Red",         "Pink",
                               "Orange",    "Light Gray", "Dark Gray", "Light Blue", "Light Green", "Cyan",
                               "Light Red", "Light Pink", "Yellow",    "White"};
  for (int code = 0; code < 16; ++code) EXPECT_EQ(ColourName(code), names[code]);
  EXPECT_EQ(ColourName(16), "");
  EXPECT_EQ(ColourName(-1), "");
  EXPECT_EQ(ColourName(8388736), "");
}

}  // namespace
}  // namespace zerimo
