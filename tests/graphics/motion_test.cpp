#include "graphics/motion.h"

#include <cmath>
#include <numbers>
#include <ostream>

#include "graphics/drawing_test.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using MotionTest = DrawingTest;

/// 1 and 40 zeros: beyond singles. An exponent would be taken for a variable's name.
const std::string Huge = "1" + std::string(40, '0');

TEST_F(MotionTest, ForwardGoesUpTheScreen) {
  EXPECT_EQ(Do("FD 10"), Texts{"Line 1000 2000 1000 1500"});
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(turtle.TurtleY, 1500);
}

TEST_F(MotionTest, BackGoesDownTheScreen) {
  EXPECT_EQ(Do("BK 10"), Texts{"Line 1000 2000 1000 2500"});
  EXPECT_EQ(turtle.TurtleY, 2500);
}

TEST_F(MotionTest, LongNamesAreTheSame) {
  EXPECT_EQ(Do("FORWARD 10", "BACK 20"), Texts({"Line 1000 2000 1000 1500", "Line 1000 1500 1000 2500"}));
  Do("RIGHT 90", "LEFT 30");
  EXPECT_DOUBLE_EQ(turtle.TurtleDir, 60 * 3.1415937 / 180);
}

TEST_F(MotionTest, NegativeInputsReverseTheMove) {
  EXPECT_EQ(Do("FD -10", "BK -10"), Texts({"Line 1000 2000 1000 2500", "Line 1000 2500 1000 2000"}));
}

TEST_F(MotionTest, RightThenForwardGoesRight) {
  Do("RT 90", "FD 10");
  EXPECT_NEAR(turtle.TurtleX, 1500, 0.001);
  EXPECT_NEAR(turtle.TurtleY, 2000, 0.001);
}

TEST_F(MotionTest, BackAlongASlantedHeading) {
  turtle.TurtleDir = 0.5;
  Do("BK 10");
  EXPECT_DOUBLE_EQ(turtle.TurtleX, 1000 + 500 * std::sin(-0.5));
  EXPECT_DOUBLE_EQ(turtle.TurtleY, 2000 + 500 * std::cos(-0.5));
}

TEST_F(MotionTest, WholeRestIsTheExpression) { EXPECT_EQ(Do("FD 10 + 5"), Texts{"Line 1000 2000 1000 1250"}); }

TEST_F(MotionTest, PositionIsNeverRounded) {
  Do("FD .333", "FD .333");
  EXPECT_DOUBLE_EQ(turtle.TurtleY, 2000 - 2 * 16.65);
}

TEST_F(MotionTest, LineGetsSingles) {
  Do("FD .1", "FD .1");
  EXPECT_EQ(Recorder.Operations.back(), "Line 1000 1995 1000 1990");
  turtle.TurtleY = 0.1;
  EXPECT_EQ(Do("FD 0"), Texts{"Line 1000 0.1 1000 0.1"});
}

TEST_F(MotionTest, ProductOverflowingCountsAsZero) {
  turtle.Resolution = 1E300;
  EXPECT_EQ(Do("FD " + Huge), Texts{"Line 1000 2000 1000 2000"});
}

TEST_F(MotionTest, MoveBeyondSinglesDrawsNothingButMoves) {
  EXPECT_EQ(Do("FD " + Huge), Nothing);
  EXPECT_DOUBLE_EQ(turtle.TurtleY, 2000 - 50 * 1E40);
}

TEST_F(MotionTest, FullTurnLeavesTheHeadingBesideTwoPi) {
  Do("RT 360");
  EXPECT_DOUBLE_EQ(turtle.TurtleDir, 6.2831874);
}

TEST_F(MotionTest, LeftTurnsAgainstTheClock) {
  Do("LT 90");
  EXPECT_DOUBLE_EQ(turtle.TurtleDir, -90 * 3.1415937 / 180);
}

TEST_F(MotionTest, HeadingGrowsWithoutBound) {
  Do("RT 3600", "RT 3600");
  EXPECT_DOUBLE_EQ(turtle.TurtleDir, 7200 * 3.1415937 / 180);
}

TEST_F(MotionTest, ResolutionDoesNotEnterTurns) {
  turtle.Resolution = 1;
  Do("RT 180");
  EXPECT_DOUBLE_EQ(turtle.TurtleDir, 3.1415937);
}

// The fence.

struct FencedMove {
  double X, Y, Dir;
  const char* Line;
  bool Admitted;
};

void PrintTo(const FencedMove& one, std::ostream* out) {
  *out << one.X << ", " << one.Y << ", " << one.Dir << ", " << Quoted(one.Line) << ", " << one.Admitted;
}

class FencedForward : public DrawingTest, public testing::WithParamInterface<FencedMove> {};

TEST_P(FencedForward, IsAdmittedUpToTheEdge) {
  FenceIn();
  turtle.TurtleX = GetParam().X;
  turtle.TurtleY = GetParam().Y;
  turtle.TurtleDir = GetParam().Dir;
  EXPECT_EQ(Do(GetParam().Line).size(), GetParam().Admitted ? 1U : 0U);
  EXPECT_EQ(services.Boxes,
            GetParam().Admitted ? std::vector<ShownBox>{} : std::vector<ShownBox>({{FenceText, 0, ""}}));
  if (!GetParam().Admitted) {
    EXPECT_EQ(turtle.TurtleX, GetParam().X);
    EXPECT_EQ(turtle.TurtleY, GetParam().Y);
  }
}

constexpr double ToTheRight = std::numbers::pi / 2;

INSTANTIATE_TEST_SUITE_P(Edges, FencedForward,
                         testing::Values(FencedMove{1000, 500, 0, "FD 10", true},
                                         FencedMove{1000, 500, 0, "FD 10.01", false},
                                         FencedMove{1000, 7500, 0, "BK 10", true},
                                         FencedMove{1000, 7500, 0, "BK 10.01", false},
                                         FencedMove{9500, 2000, ToTheRight, "FD 10", true},
                                         FencedMove{9500, 2000, ToTheRight, "FD 10.01", false},
                                         FencedMove{500, 2000, ToTheRight, "BK 10", true},
                                         FencedMove{500, 2000, ToTheRight, "BK 10.01", false}));

TEST_F(MotionTest, FenceRoundsTheLowerEdgeAloneToASingle) {
  FenceIn();
  turtle.TurtleY = 8000.0001;
  EXPECT_EQ(Do("FD 0").size(), 1U);
  turtle.TurtleX = 10000.0001;
  EXPECT_EQ(Do("FD 0"), Nothing);
}

TEST_F(MotionTest, FencedMoveOfZeroOutsideShowsTheMessage) {
  FenceIn();
  turtle.TurtleX = -1;
  EXPECT_EQ(Do("FD 0"), Nothing);
  EXPECT_EQ(services.BoxTexts(), Texts{FenceText});
}

TEST_F(MotionTest, FenceTestThatFailsAdmitsTheMove) {
  FenceIn();
  EXPECT_EQ(Do("BK " + Huge), Nothing);
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_DOUBLE_EQ(turtle.TurtleY, 2000 + 50 * 1E40);
}

TEST_F(MotionTest, WindowLetsTheTurtleLeave) {
  EXPECT_EQ(Do("FD 100"), Texts{"Line 1000 2000 1000 -3000"});
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(MotionTest, ResolutionZeroedByTheBoxMovesNowhere) {
  turtle.Resolution = 0;
  EXPECT_EQ(Do("FD 10"), Texts{"Line 1000 2000 1000 2000"});
}

// SETX, SETY, SETXY.

TEST_F(MotionTest, SetXTakesTheWidthOfTheSurface) {
  EXPECT_EQ(Do("SETX 2.5"), Texts{"Line 1000 2000 5125 2000"});
  EXPECT_EQ(turtle.TurtleX, 5125);
  EXPECT_EQ(turtle.TurtleY, 2000);
}

TEST_F(MotionTest, SetYTakesTheHeightOfTheForm) {
  EXPECT_EQ(Do("SETY 2.5"), Texts{"Line 1000 2000 1000 4375"});
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(turtle.TurtleY, 4375);
}

TEST_F(MotionTest, SetXYDrawsToThePoint) {
  EXPECT_EQ(Do("SETXY 2.5 3"), Texts{"Line 1000 2000 5125 4350"});
  EXPECT_EQ(turtle.TurtleX, 5125);
  EXPECT_EQ(turtle.TurtleY, 4350);
}

TEST_F(MotionTest, SetXYWithThePenUpDrawsNothing) {
  Do("PU");
  EXPECT_EQ(Do("SETXY 2 3", "SETX 4", "SETY 5"), Nothing);
  EXPECT_EQ(turtle.TurtleX, 5200);
  EXPECT_EQ(turtle.TurtleY, 4250);
}

struct WholeStep {
  double Resolution;
  const char* Line;
  double Y;
};

void PrintTo(const WholeStep& one, std::ostream* out) {
  *out << one.Resolution << ", " << Quoted(one.Line) << ", " << one.Y;
}

class SetXYHeight : public DrawingTest, public testing::WithParamInterface<WholeStep> {};

TEST_P(SetXYHeight, IsRoundedBeforeAndAfterTheProduct) {
  turtle.Resolution = GetParam().Resolution;
  Do(GetParam().Line);
  EXPECT_EQ(turtle.TurtleY, GetParam().Y);
}

INSTANTIATE_TEST_SUITE_P(Steps, SetXYHeight,
                         testing::Values(WholeStep{50, "SETXY 0 2.5", 4400}, WholeStep{50, "SETXY 0 3.5", 4300},
                                         WholeStep{50, "SETXY 0 -2.5", 4600}, WholeStep{0.5, "SETXY 0 5", 4498},
                                         WholeStep{0.5, "SETXY 0 3", 4498}, WholeStep{50, "SETXY 0 655", 4500 - 32750},
                                         WholeStep{50, "SETXY 0 656", 4500}, WholeStep{50, "SETXY 0 -656", 4500},
                                         WholeStep{1, "SETXY 0 32767", 4500 - 32767},
                                         WholeStep{1, "SETXY 0 32768", 4500}));

TEST_F(MotionTest, SetXYStoresTheHeightThatItsLineRounds) {
  controls.Form1.SetHeight(9001);
  turtle.Resolution = 1;
  EXPECT_EQ(Do("SETXY 0 1"), Texts{"Line 1000 2000 5000 4500"});
  EXPECT_EQ(turtle.TurtleY, 4499.5);
  EXPECT_EQ(Do("SETXY 0 0"), Texts{"Line 5000 4499.5 5000 4500"});
  EXPECT_EQ(turtle.TurtleY, 4500.5);
}

TEST_F(MotionTest, SetXYTargetBeyond16BitsDrawsToTheTopEdge) {
  EXPECT_EQ(Do("SETXY 0 -600"), Texts{"Line 1000 2000 5000 0"});
  EXPECT_EQ(turtle.TurtleY, 34500);
}

TEST_F(MotionTest, SetXYMissingWordsCountAsZero) {
  EXPECT_EQ(Do("SETXY 2"), Texts{"Line 1000 2000 5100 4500"});
  EXPECT_EQ(Do("SETXY"), Texts{"Line 5100 4500 5000 4500"});
  EXPECT_TRUE(services.Boxes.empty());
}

struct FencedTarget {
  const char* Line;
  bool Admitted;
};

void PrintTo(const FencedTarget& one, std::ostream* out) { *out << Quoted(one.Line) << ", " << one.Admitted; }

class FencedSet : public DrawingTest, public testing::WithParamInterface<FencedTarget> {};

TEST_P(FencedSet, IsAdmittedWithItsOwnEdges) {
  FenceIn();
  EXPECT_EQ(Do(GetParam().Line).size(), GetParam().Admitted ? 1U : 0U);
  EXPECT_EQ(services.BoxTexts(), GetParam().Admitted ? Nothing : Texts{FenceText});
  if (!GetParam().Admitted) {
    EXPECT_EQ(turtle.TurtleX, 1000);
    EXPECT_EQ(turtle.TurtleY, 2000);
  }
}

INSTANTIATE_TEST_SUITE_P(Edges, FencedSet,
                         testing::Values(FencedTarget{"SETX -100", true}, FencedTarget{"SETX -100.01", false},
                                         FencedTarget{"SETX 100", true}, FencedTarget{"SETX 100.000002", false},
                                         FencedTarget{"SETY 90", true}, FencedTarget{"SETY 90.01", false},
                                         FencedTarget{"SETY -70", true}, FencedTarget{"SETY -70.000002", false},
                                         FencedTarget{"SETXY -100 0", false}, FencedTarget{"SETXY -99.99 0", true},
                                         FencedTarget{"SETXY 100 0", true}, FencedTarget{"SETXY 100.01 0", false},
                                         FencedTarget{"SETXY 0 90", false}, FencedTarget{"SETXY 0 89", true},
                                         FencedTarget{"SETXY 0 -70", true}, FencedTarget{"SETXY 0 -71", false}));

TEST_F(MotionTest, FencedSetXYLooksAtTheRoundedHeight) {
  FenceIn();
  controls.Form1.SetHeight(9001);
  EXPECT_EQ(Do("SETXY 0 90"), Nothing);
  EXPECT_EQ(services.BoxTexts(), Texts{FenceText});
}

// Missing inputs.

struct MissingBox {
  const char* Word;
  int Style;
  const char* Title;
};

void PrintTo(const MissingBox& one, std::ostream* out) {
  *out << Quoted(one.Word) << ", " << one.Style << ", " << Quoted(one.Title);
}

class MissingInputOfMotion : public DrawingTest, public testing::WithParamInterface<MissingBox> {};

TEST_P(MissingInputOfMotion, ShowsItsOwnBoxAndDrawsNothing) {
  EXPECT_EQ(Do(GetParam().Word), Nothing);
  EXPECT_EQ(services.Boxes,
            std::vector<ShownBox>({{std::string(MissingText) + GetParam().Word, GetParam().Style, GetParam().Title}}));
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(turtle.TurtleY, 2000);
  EXPECT_EQ(turtle.TurtleDir, 0);
}

INSTANTIATE_TEST_SUITE_P(Words, MissingInputOfMotion,
                         testing::Values(MissingBox{"FD", 2, "Zerimo"}, MissingBox{"FORWARD", 2, "Zerimo"},
                                         MissingBox{"LT", 2, "Zerimo"}, MissingBox{"LEFT", 2, "Zerimo"},
                                         MissingBox{"SETX", 2, "Zerimo"}, MissingBox{"SETY", 2, "Zerimo"},
                                         MissingBox{"LW", 2, "Zerimo"}, MissingBox{"LINEWIDTH", 2, "Zerimo"},
                                         MissingBox{"DRAWMODE", 2, "Zerimo"}, MissingBox{"BK", 64, "Zerimo Message"},
                                         MissingBox{"BACK", 64, "Zerimo Message"}, MissingBox{"RT", 0, ""},
                                         MissingBox{"RIGHT", 0, ""}, MissingBox{"RESOLUTION", 0, ""}));

TEST_F(MotionTest, ResolutionAloneGives10AfterItsBox) {
  Do("RESOLUTION");
  EXPECT_EQ(turtle.Resolution, 10);
  EXPECT_EQ(services.Boxes.size(), 1U);
}

TEST_F(MotionTest, ResolutionZeroGives10) {
  Do("RESOLUTION 0");
  EXPECT_EQ(turtle.Resolution, 10);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(MotionTest, ResolutionTakesAnyOtherValue) {
  controls.Text3.Text = "50";
  Do("RESOLUTION 2.5");
  EXPECT_EQ(turtle.Resolution, 2.5);
  EXPECT_EQ(controls.Text3.Text, "50");
  Do("RESOLUTION -50");
  EXPECT_EQ(Do("FD 10"), Texts{"Line 1000 2000 1000 2500"});
}

TEST_F(MotionTest, ResolutionKeepsThePositionInSurfaceUnits) {
  Do("RESOLUTION 100", "XCOR");
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(services.BoxTexts(), Texts{"-40"});
}

// The pen.

TEST_F(MotionTest, PenTellsItsState) {
  Do("PEN", "PU", "PEN", "PE", "PEN");
  EXPECT_EQ(services.Boxes,
            std::vector<ShownBox>({{"Pen Down", 64, "Zerimo"}, {"Pen Up", 64, "Zerimo"}, {"Pen Erase", 64, "Zerimo"}}));
}

TEST_F(MotionTest, PenUpLeavesTheForeground) {
  EXPECT_EQ(Do("PU"), Nothing);
  EXPECT_EQ(turtle.PenState, PenPosition::Up);
}

TEST_F(MotionTest, PenDownSetsTheColourOfThePen) {
  turtle.PenColor = 12;
  EXPECT_EQ(Do("PD"), Texts{"ForeColor=255"});
  EXPECT_EQ(turtle.PenState, PenPosition::Down);
}

TEST_F(MotionTest, PenEraseSetsTheColourOfTheBackground) {
  EXPECT_EQ(Do("PE"), Texts{"ForeColor=8388736"});
  EXPECT_EQ(turtle.PenState, PenPosition::Erase);
}

TEST_F(MotionTest, PenReverseTurnsDownAndUp) {
  EXPECT_EQ(Do("PX"), Nothing);
  EXPECT_EQ(turtle.PenState, PenPosition::Up);
  EXPECT_EQ(Do("PX"), Texts{"ForeColor=16777215"});
  EXPECT_EQ(turtle.PenState, PenPosition::Down);
}

TEST_F(MotionTest, PenReverseWhileErasingGoesOnErasing) {
  EXPECT_EQ(Do("PE", "PX"), Texts{"ForeColor=8388736"});
  EXPECT_EQ(turtle.PenState, PenPosition::Erase);
}

TEST_F(MotionTest, LongPenNamesAreTheSameAndTheRestIsIgnored) {
  Do("PENUP 5");
  EXPECT_EQ(turtle.PenState, PenPosition::Up);
  Do("PENDOWN 5");
  EXPECT_EQ(turtle.PenState, PenPosition::Down);
  Do("PENERASE 5");
  EXPECT_EQ(turtle.PenState, PenPosition::Erase);
  turtle.PenState = PenPosition::Down;
  Do("PENREVERSE 5");
  EXPECT_EQ(turtle.PenState, PenPosition::Up);
}

TEST_F(MotionTest, UpMoveDownLeavesNoLineAndTheColourIsBack) {
  EXPECT_EQ(Do("PU", "FD 10", "PD"), Texts{"ForeColor=16777215"});
  EXPECT_EQ(turtle.TurtleY, 1500);
}

TEST_F(MotionTest, EraseUpDownIsDownInThePenColour) {
  EXPECT_EQ(Do("PE", "PU", "PD"), Texts({"ForeColor=8388736", "ForeColor=16777215"}));
  EXPECT_EQ(turtle.PenState, PenPosition::Down);
}

TEST_F(MotionTest, ErasingMoveDrawsInTheBackground) {
  Do("PE", "FD 10");
  EXPECT_EQ(Recorder.Operations.back(), "Line 1000 2000 1000 1500");
  EXPECT_EQ(Pixels.LastStroke.Color, 8388736);
}

TEST_F(MotionTest, ForegroundWrittenElsewhereColoursTheNextLine) {
  Picture1.SetForeColor(123);
  Do("FD 10");
  EXPECT_EQ(Pixels.LastStroke.Color, 123);
}

}  // namespace
}  // namespace zerimo
