#include <ostream>

#include "graphics/drawing_test.h"
#include "graphics/motion.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

/// The figure, the width and the mode.
using SettingsTest = DrawingTest;

TEST_F(SettingsTest, HiddenFigureMovesOn) {
  EXPECT_EQ(Do("HT", "FD 10").size(), 1U);
  for (const Control* part : {static_cast<Control*>(&controls.Shape2), static_cast<Control*>(&controls.Line1),
                              static_cast<Control*>(&controls.Line2), static_cast<Control*>(&controls.Line3)}) {
    EXPECT_FALSE(part->Visible());
  }
  Do("ST");
  EXPECT_TRUE(controls.Shape2.Visible());
  EXPECT_TRUE(controls.Line1.Visible());
  EXPECT_TRUE(controls.Line2.Visible());
  EXPECT_TRUE(controls.Line3.Visible());
  EXPECT_NEAR(controls.Shape2.Top, 1500 - 310, 0.01);
}

TEST_F(SettingsTest, LongFigureNamesAreTheSame) {
  Do("HIDETURTLE");
  EXPECT_FALSE(controls.Shape2.Visible());
  Do("SHOWTURTLE");
  EXPECT_TRUE(controls.Shape2.Visible());
}

TEST_F(SettingsTest, FigureNamesAreMatchedAlone) {
  Do("HT 1", "PEN 1", "CLEAN 1");
  EXPECT_TRUE(controls.Shape2.Visible());
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(Recorder.Operations, Nothing);
}

struct Setting {
  const char* Line;
  int Value;
};

void PrintTo(const Setting& one, std::ostream* out) { *out << Quoted(one.Line) << ", " << one.Value; }

class LineWidthInput : public DrawingTest, public testing::WithParamInterface<Setting> {};

TEST_P(LineWidthInput, IsRoundedTo16BitsOrRefused) {
  Picture1.SetDrawWidth(9);
  controls.Text4.Text = "1";
  Do(GetParam().Line);
  EXPECT_EQ(Picture1.DrawWidth(), GetParam().Value);
  EXPECT_EQ(controls.Text4.Text, "1");
}

INSTANTIATE_TEST_SUITE_P(typedLines, LineWidthInput,
                         testing::Values(Setting{"LW 3", 3}, Setting{"LW 2.5", 2}, Setting{"LW 3.5", 4},
                                         Setting{"LW .5", 9}, Setting{"LW 0", 9}, Setting{"LW -1", 9},
                                         Setting{"LW 32767", 32767}, Setting{"LW 32768", 9}, Setting{"LW", 9},
                                         Setting{"LINEWIDTH 3", 9}, Setting{"LINEWIDTH", 9}));

class DrawModeInput : public DrawingTest, public testing::WithParamInterface<Setting> {};

TEST_P(DrawModeInput, IsRoundedTo16BitsOrRefused) {
  Do(GetParam().Line);
  EXPECT_EQ(Picture1.DrawMode(), DrawingMode{GetParam().Value});
}

INSTANTIATE_TEST_SUITE_P(typedLines, DrawModeInput,
                         testing::Values(Setting{"DRAWMODE 1", 1}, Setting{"DRAWMODE 16", 16},
                                         Setting{"DRAWMODE 6.5", 6}, Setting{"DRAWMODE 7.5", 8},
                                         Setting{"DRAWMODE 0", 13}, Setting{"DRAWMODE 17", 13},
                                         Setting{"DRAWMODE -1", 13}, Setting{"DRAWMODE 40000", 13},
                                         Setting{"DRAWMODE", 13}));

TEST_F(SettingsTest, CleanClearsAndKeepsTheTurtle) {
  turtle.TurtleDir = 1;
  turtle.PenState = PenPosition::Erase;
  EXPECT_EQ(Do("CLEAN"), Texts{"Cls"});
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(turtle.TurtleY, 2000);
  EXPECT_EQ(turtle.TurtleDir, 1);
  EXPECT_EQ(turtle.PenState, PenPosition::Erase);
  EXPECT_TRUE(controls.Image1.Visible());
}

TEST_F(SettingsTest, ClearScreenTakesTheTitleAwayAndGoesToTheMiddleOfTheForm) {
  turtle.TurtleDir = 1;
  EXPECT_EQ(Do("CS"), Texts{"Cls"});
  EXPECT_FALSE(controls.Image1.Visible());
  for (int index = 0; index < 4; ++index) EXPECT_FALSE(controls.Label20[index].Visible());
  EXPECT_EQ(turtle.TurtleX, 6000);
  EXPECT_EQ(turtle.TurtleY, 4500);
  EXPECT_EQ(turtle.TurtleDir, 0);
}

TEST_F(SettingsTest, ClearScreenKeepsPenFenceAndResolution) {
  FenceIn();
  turtle.PenState = PenPosition::Erase;
  turtle.PenColor = 4;
  turtle.Resolution = 7;
  EXPECT_EQ(Do("CLEARSCREEN 1", "CS"), Texts({"Cls", "Cls"}));
  EXPECT_EQ(turtle.FenceMode, TurtleBounds::Fence);
  EXPECT_EQ(turtle.PenState, PenPosition::Erase);
  EXPECT_EQ(turtle.PenColor, 4);
  EXPECT_EQ(turtle.Resolution, 7);
}

TEST_F(SettingsTest, RefreshOnlyRefreshes) {
  EXPECT_EQ(Do("REFRESH"), Nothing);
  EXPECT_EQ(Refreshes, 1);
}

}  // namespace
}  // namespace zerimo
