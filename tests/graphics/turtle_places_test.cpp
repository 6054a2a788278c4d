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
  turtle.TurtleX = GetParam().X;
  turtle.TurtleY = GetParam().Y;
  Do("FENCE");
  EXPECT_EQ(turtle.FenceMode, GetParam().Inside ? TurtleBounds::Fence : TurtleBounds::Window);
  EXPECT_EQ(services.Boxes, GetParam().Inside ? std::vector<ShownBox>{} : std::vector<ShownBox>{OutsideBox});
  EXPECT_EQ(turtle.TurtleX, GetParam().X);
  EXPECT_EQ(turtle.TurtleY, GetParam().Y);
}

INSTANTIATE_TEST_SUITE_P(Edges, FenceEdge,
                         testing::Values(FencePlace{0, 2000, false}, FencePlace{0.5, 2000, true},
                                         FencePlace{-1, 2000, false}, FencePlace{10000, 2000, true},
                                         FencePlace{10000.5, 2000, false}, FencePlace{1000, 0, true},
                                         FencePlace{1000, -0.5, false}, FencePlace{1000, 8000, true},
                                         FencePlace{1000, 8000.5, false}));

TEST_F(TurtlePlacesTest, RefusedFenceLeavesAFenceOn) {
  FenceIn();
  turtle.TurtleX = -100;
  Do("FENCE");
  EXPECT_EQ(turtle.FenceMode, TurtleBounds::Fence);
}

TEST_F(TurtlePlacesTest, WindowNeedsNoTestOfThePosition) {
  FenceIn();
  turtle.TurtleX = -100;
  Do("WINDOW");
  EXPECT_EQ(turtle.FenceMode, TurtleBounds::Window);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(TurtlePlacesTest, XCorTakesTheWidthOfTheSurface) {
  Do("XCOR");
  EXPECT_EQ(services.Boxes, std::vector<ShownBox>({{"-80", 0, ""}}));
}

TEST_F(TurtlePlacesTest, YCorTakesTheHeightOfTheForm) {
  Do("YCOR");
  EXPECT_EQ(services.Boxes, std::vector<ShownBox>({{" 50", 0, ""}}));
}

TEST_F(TurtlePlacesTest, GetXYJoinsBothWithTwoBlanks) {
  Do("GETXY");
  EXPECT_EQ(services.Boxes, std::vector<ShownBox>({{"-80   50", 0, ""}}));
}

TEST_F(TurtlePlacesTest, XCorRoundsInSurfaceUnitsAndShowsDecimals) {
  turtle.TurtleX = 5012.5;
  Do("XCOR");
  turtle.TurtleX = 5013.5;
  Do("XCOR");
  EXPECT_EQ(services.BoxTexts(), Texts({" .24", " .28"}));
}

TEST_F(TurtlePlacesTest, YCorRoundsInSurfaceUnitsAndShowsDecimals) {
  turtle.TurtleY = 4500 - 12.5;
  Do("YCOR");
  turtle.TurtleY = 4500 + 13.5;
  Do("YCOR");
  EXPECT_EQ(services.BoxTexts(), Texts({" .24", "-.28"}));
}

TEST_F(TurtlePlacesTest, GetXYRoundsWholeStepsHalfToEven) {
  turtle.TurtleX = 5025;
  turtle.TurtleY = 4500 - 75;
  Do("GETXY");
  EXPECT_EQ(services.BoxTexts(), Texts{" 0   2"});
}

TEST_F(TurtlePlacesTest, ReadingsShowZeroInTheMiddle) {
  turtle.TurtleX = 5000;
  turtle.TurtleY = 4500;
  Do("XCOR", "YCOR", "GETXY");
  EXPECT_EQ(services.BoxTexts(), Texts({" 0", " 0", " 0   0"}));
}

TEST_F(TurtlePlacesTest, ReadingsGoOnOutsideOfTheSurface) {
  turtle.TurtleX = -5000;
  turtle.TurtleY = 14500;
  Do("WINDOW", "XCOR", "YCOR", "GETXY");
  EXPECT_EQ(services.BoxTexts(), Texts({"-200", "-200", "-200  -200"}));
}

TEST_F(TurtlePlacesTest, ReadingsShowNothingAtAResolutionOfZero) {
  turtle.Resolution = 0;
  Do("XCOR", "YCOR", "GETXY");
  turtle.TurtleX = 5000;
  Do("XCOR");
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(TurtlePlacesTest, HomeTurnsUpAndDrawsToTheMiddleOfTheForm) {
  turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOME"), Texts{"Line 1000 2000 6000 4500"});
  EXPECT_EQ(turtle.TurtleDir, 0);
  EXPECT_EQ(turtle.TurtleX, 6000);
  EXPECT_EQ(turtle.TurtleY, 4500);
}

TEST_F(TurtlePlacesTest, HomeXYKeepsTheHeading) {
  turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOMEXY"), Texts{"Line 1000 2000 6000 4500"});
  EXPECT_EQ(turtle.TurtleDir, 1);
  EXPECT_EQ(turtle.TurtleX, 6000);
  EXPECT_EQ(turtle.TurtleY, 4500);
}

TEST_F(TurtlePlacesTest, HomeXKeepsTheHeight) {
  turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOMEX"), Texts{"Line 1000 2000 6000 2000"});
  EXPECT_EQ(turtle.TurtleX, 6000);
  EXPECT_EQ(turtle.TurtleY, 2000);
  EXPECT_EQ(turtle.TurtleDir, 1);
}

TEST_F(TurtlePlacesTest, HomeYKeepsTheColumn) {
  turtle.TurtleDir = 1;
  EXPECT_EQ(Do("HOMEY"), Texts{"Line 1000 2000 1000 4500"});
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(turtle.TurtleY, 4500);
  EXPECT_EQ(turtle.TurtleDir, 1);
}

class HomeName : public DrawingTest, public testing::WithParamInterface<const char*> {};

TEST_P(HomeName, DrawsNoLineWithThePenUp) {
  turtle.PenState = PenPosition::Up;
  EXPECT_EQ(Do(GetParam()), Nothing);
}

TEST_P(HomeName, DrawsInTheColourOfThePenWhileErasing) {
  Do("PE");
  EXPECT_EQ(Do(GetParam()).size(), 1U);
  EXPECT_EQ(Pixels.LastStroke.Color, Picture1.BackColor());
}

TEST_P(HomeName, AsksNoFence) {
  FenceIn();
  controls.Form1.Width = 60000;
  controls.Form1.SetHeight(60000);
  EXPECT_EQ(Do(GetParam()).size(), 1U);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_P(HomeName, IgnoresWhatFollowsIt) { EXPECT_EQ(Do(std::string(GetParam()) + " 5").size(), 1U); }

INSTANTIATE_TEST_SUITE_P(variables, HomeName, testing::Values("HOME", "HOMEX", "HOMEY", "HOMEXY"));

TEST_F(TurtlePlacesTest, HomeYMovesWithoutALineWithThePenUp) {
  turtle.PenState = PenPosition::Up;
  Do("HOMEY");
  EXPECT_EQ(turtle.TurtleY, 4500);
}

TEST_F(TurtlePlacesTest, DrawHidesTheTitlePictureOnly) {
  Do("DRAW");
  EXPECT_FALSE(controls.Image1.Visible());
  for (int index = 0; index < 4; ++index) EXPECT_TRUE(controls.Label20[index].Visible());
}

}  // namespace
}  // namespace zerimo
