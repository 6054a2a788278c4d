#include "graphics/turtle_places.h"

#include "graphics/drawing_test.h"

namespace zerimo {
namespace {

using TurtlePlacesTest = DrawingTest;

const ShownBox OutsideBox{"The Fence command can not be used while the Turtle is at outside of the Screen", 0, ""};

struct FencePlace {
  double X, Y;
  bool Inside;
};

void PrintTo(const FencePlace& one, std::ostream* out) { *out << one.X << ", " << one.Y << ", " << one.Inside; }

class FenceEdge : public DrawingTest, public testing::WithParamInterface<FencePlace> {};

TEST_P(FenceEdge, DecidesWhetherTheFenceIsTurnedOn) {
  Turtle.TurtleX = GetParam().X;
  Turtle.TurtleY = GetParam().Y;
  Do("FENCE");
  EXPECT_EQ(Turtle.FenceMode, GetParam().Inside ? 2 : 1);
  EXPECT_EQ(Desktop.Boxes, GetParam().Inside ? std::vector<ShownBox>{} : std::vector<ShownBox>{OutsideBox});
  EXPECT_EQ(Turtle.TurtleX, GetParam().X);
  EXPECT_EQ(Turtle.TurtleY, GetParam().Y);
}

INSTANTIATE_TEST_SUITE_P(Edges, FenceEdge,
                         testing::Values(FencePlace{0, 2000, false}, FencePlace{0.5, 2000, true},
                                         FencePlace{-1, 2000, false}, FencePlace{10000, 2000, true},
                                         FencePlace{10000.5, 2000, false}, FencePlace{1000, 0, true},
                                         FencePlace{1000, -0.5, false}, FencePlace{1000, 8000, true},
                                         FencePlace{1000, 8000.5, false}));

TEST_F(TurtlePlacesTest, RefusedFenceLeavesAFenceOn) {
  FenceIn();
  Turtle.TurtleX = -100;
  Do("FENCE");
  EXPECT_EQ(Turtle.FenceMode, 2);
}

TEST_F(TurtlePlacesTest, WindowNeedsNoTestOfThePosition) {
  FenceIn();
  Turtle.TurtleX = -100;
  Do("WINDOW");
  EXPECT_EQ(Turtle.FenceMode, 1);
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(TurtlePlacesTest, XCorTakesTheWidthOfTheSurface) {
  Do("XCOR");
  EXPECT_EQ(Desktop.Boxes, std::vector<ShownBox>({{"-80", 0, ""}}));
}

TEST_F(TurtlePlacesTest, YCorTakesTheHeightOfTheForm) {
  Do("YCOR");
  EXPECT_EQ(Desktop.Boxes, std::vector<ShownBox>({{" 50", 0, ""}}));
}

TEST_F(TurtlePlacesTest, GetXYJoinsBothWithTwoBlanks) {
  Do("GETXY");
  EXPECT_EQ(Desktop.Boxes, std::vector<ShownBox>({{"-80   50", 0, ""}}));
}

TEST_F(TurtlePlacesTest, XCorRoundsInSurfaceUnitsAndShowsDecimals) {
  Turtle.TurtleX = 5012.5;
  Do("XCOR");
  Turtle.TurtleX = 5013.5;
  Do("XCOR");
  EXPECT_EQ(Desktop.BoxTexts(), Texts({" .24", " .28"}));
}

TEST_F(TurtlePlacesTest, YCorRoundsInSurfaceUnitsAndShowsDecimals) {
  Turtle.TurtleY = 4500 - 12.5;
  Do("YCOR");
  Turtle.TurtleY = 4500 + 13.5;
  Do("YCOR");
  EXPECT_EQ(Desktop.BoxTexts(), Texts({" .24", "-.28"}));
}

TEST_F(TurtlePlacesTest, GetXYRoundsWholeStepsHalfToEven) {
  Turtle.TurtleX = 5025;
  Turtle.TurtleY = 4500 - 75;
  Do("GETXY");
  EXPECT_EQ(Desktop.BoxTexts(), Texts{" 0   2"});
}

TEST_F(TurtlePlacesTest, ReadingsShowZeroInTheMiddle) {
  Turtle.TurtleX = 5000;
  Turtle.TurtleY = 4500;
  Do("XCOR", "YCOR", "GETXY");
  EXPECT_EQ(Desktop.BoxTexts(), Texts({" 0", " 0", " 0   0"}));
}

TEST_F(TurtlePlacesTest, ReadingsGoOnOutsideOfTheSurface) {
  Turtle.TurtleX = -5000;
  Turtle.TurtleY = 14500;
  Do("WINDOW", "XCOR", "YCOR", "GETXY");
  EXPECT_EQ(Desktop.BoxTexts(), Texts({"-200", "-200", "-200  -200"}));
}

TEST_F(TurtlePlacesTest, ReadingsShowNothingAtAResolutionOfZero) {
  Turtle.Resolution = 0;
  Do("XCOR", "YCOR", "GETXY");
  Turtle.TurtleX = 5000;
  Do("XCOR");
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(TurtlePlacesTest, HomeTurnsUpAndDrawsToTheMiddleOfTheForm) {
  Turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOME"), Texts{"Line 1000 2000 6000 4500"});
  EXPECT_EQ(Turtle.TurtleDir, 0);
  EXPECT_EQ(Turtle.TurtleX, 6000);
  EXPECT_EQ(Turtle.TurtleY, 4500);
}

TEST_F(TurtlePlacesTest, HomeXYKeepsTheHeading) {
  Turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOMEXY"), Texts{"Line 1000 2000 6000 4500"});
  EXPECT_EQ(Turtle.TurtleDir, 1);
  EXPECT_EQ(Turtle.TurtleX, 6000);
  EXPECT_EQ(Turtle.TurtleY, 4500);
}

TEST_F(TurtlePlacesTest, HomeXKeepsTheHeight) {
  Turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOMEX"), Texts{"Line 1000 2000 6000 2000"});
  EXPECT_EQ(Turtle.TurtleX, 6000);
  EXPECT_EQ(Turtle.TurtleY, 2000);
  EXPECT_EQ(Turtle.TurtleDir, 1);
}

TEST_F(TurtlePlacesTest, HomeYKeepsTheColumn) {
  Turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOMEY"), Texts{"Line 1000 2000 1000 4500"});
  EXPECT_EQ(Turtle.TurtleX, 1000);
  EXPECT_EQ(Turtle.TurtleY, 4500);
  EXPECT_EQ(Turtle.TurtleDir, 1);
}

class HomeName : public DrawingTest, public testing::WithParamInterface<const char*> {};

TEST_P(HomeName, DrawsNoLineWithThePenUp) {
  Turtle.PenState = 2;
  EXPECT_EQ(Do(GetParam()), Nothing);
}

TEST_P(HomeName, DrawsInTheColourOfThePenWhileErasing) {
  Do("PE");
  EXPECT_EQ(Do(GetParam()).size(), 1U);
  EXPECT_EQ(Pixels.LastStroke.Color, Picture1.BackColor());
}

TEST_P(HomeName, AsksNoFence) {
  FenceIn();
  Controls.Form1.Width = 60000;
  Controls.Form1.SetHeight(60000);
  EXPECT_EQ(Do(GetParam()).size(), 1U);
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_P(HomeName, IgnoresWhatStandsBehindIt) { EXPECT_EQ(Do(std::string(GetParam()) + " 5").size(), 1U); }

INSTANTIATE_TEST_SUITE_P(Names, HomeName, testing::Values("HOME", "HOMEX", "HOMEY", "HOMEXY"));

TEST_F(TurtlePlacesTest, HomeYMovesWithoutALineWithThePenUp) {
  Turtle.PenState = 2;
  Do("HOMEY");
  EXPECT_EQ(Turtle.TurtleY, 4500);
}

TEST_F(TurtlePlacesTest, DrawHidesTheTitlePictureOnly) {
  Do("DRAW");
  EXPECT_FALSE(Controls.Image1.Visible());
  for (int index = 0; index < 4; ++index) EXPECT_TRUE(Controls.Label20[index].Visible());
}

}  // namespace
}  // namespace zerimo
