#include "graphics/shapes.h"

#include <cmath>
#include <cstdio>
#include <ostream>

#include "graphics/drawing_test.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using ShapesTest = DrawingTest;

// Points and dots.

TEST_F(ShapesTest, PointStandsAtTheTurtle) { EXPECT_EQ(Do("POINT 1 2 3"), Texts{"PSet 1000 2000 197121"}); }

TEST_F(ShapesTest, PointReducesRedAndGreenBy256) {
  EXPECT_EQ(Do("POINT 300 0 0"), Texts{"PSet 1000 2000 44"});
  EXPECT_EQ(Do("POINT 0 257 0"), Texts{"PSet 1000 2000 256"});
  EXPECT_EQ(Do("POINT 2.5 3.5 0"), Texts{"PSet 1000 2000 1026"});
}

TEST_F(ShapesTest, PointCountsABlueThatIsNoByteAsZero) {
  EXPECT_EQ(Do("POINT 1 0 255"), Texts{"PSet 1000 2000 16711681"});
  EXPECT_EQ(Do("POINT 1 0 256"), Texts{"PSet 1000 2000 1"});
  EXPECT_EQ(Do("POINT 1 0 -1"), Texts{"PSet 1000 2000 1"});
  EXPECT_EQ(Do("POINT 1 0 2.5"), Texts{"PSet 1000 2000 131073"});
}

TEST_F(ShapesTest, PointWithANegativePartDrawsNothing) {
  EXPECT_EQ(Do("POINT -1 0 0"), Nothing);
  EXPECT_EQ(Do("POINT 0 -300 0"), Nothing);
}

TEST_F(ShapesTest, DotTakesTheSurfacesWidthAndTheFormsHeight) {
  EXPECT_EQ(Do("DOT 2.5 3"), Texts{"PSet 5125 4350 16777215"});
}

TEST_F(ShapesTest, DotHasWholeStepsInHeight) {
  EXPECT_EQ(Do("DOT 0 2.5"), Texts{"PSet 5000 4400 16777215"});
  EXPECT_EQ(Do("DOT 0 1000"), Texts{"PSet 5000 4500 16777215"});
  turtle.Resolution = 0.5;
  EXPECT_EQ(Do("DOT 0 5"), Texts{"PSet 5000 4498 16777215"});
}

TEST_F(ShapesTest, DotShowsThePenColourWhileErasing) {
  turtle.PenColor = 4;
  Do("PE");
  EXPECT_EQ(Do("DOT 0 0"), Texts{"PSet 5000 4500 128"});
  Do("LINE 0 0 1 1");
  EXPECT_EQ(Pixels.LastStroke.Color, Picture1.BackColor());
}

// Circles.

TEST_F(ShapesTest, CircleTakesTheScreensHeight) { EXPECT_EQ(Do("CIRCLE 1.5 2.5 3"), Texts{"Circle 5075 5635 150"}); }

TEST_F(ShapesTest, CircleAndDotAgreeInHeightIfFormAndScreenDo) {
  controls.Form1.SetHeight(11520);
  EXPECT_EQ(Do("CIRCLE 0 0 2", "DOT 0 0"), Texts({"Circle 5000 5760 100", "PSet 5000 5760 16777215"}));
}

TEST_F(ShapesTest, CircleHasAWholeRadius) {
  EXPECT_EQ(Do("CIRCLE 0 0 2.5"), Texts{"Circle 5000 5760 100"});
  EXPECT_EQ(Do("CIRCLE 0 0 3.5"), Texts{"Circle 5000 5760 200"});
  turtle.Resolution = 0.5;
  EXPECT_EQ(Do("CIRCLE 0 0 3"), Texts{"Circle 5000 5760 2"});
}

TEST_F(ShapesTest, CircleRadiusBeyond16BitsIsZero) {
  EXPECT_EQ(Do("CIRCLE 0 0 1000"), Texts{"Circle 5000 5760 0"});
  EXPECT_EQ(Do("CIRCLE 0 0 655"), Texts{"Circle 5000 5760 32750"});
}

TEST_F(ShapesTest, StampCircleStandsAroundTheTurtle) {
  EXPECT_EQ(Do("STAMPCIRCLE 2.5"), Texts{"Circle 1000 2000 125"});
  EXPECT_EQ(Do("STAMPCIRCLE 1 + 1"), Texts{"Circle 1000 2000 100"});
}

TEST_F(ShapesTest, StampCircleWithoutInputShowsTheBox) {
  EXPECT_EQ(Do("STAMPCIRCLE"), Nothing);
  EXPECT_EQ(services.Boxes, std::vector<ShownBox>({{std::string(MissingText) + "STAMPCIRCLE", 2, "Zerimo"}}));
}

TEST_F(ShapesTest, FirstCircleIsAFilledBlackDisc) {
  Do("CIRCLE 0 0 2");
  EXPECT_EQ(Pixels.LastFilling.Style, FillPattern::Solid);
  EXPECT_EQ(Pixels.LastFilling.Color, 0);
  EXPECT_EQ(Pixels.LastStroke.Color, 0xFFFFFF);
}

// Lines.

TEST_F(ShapesTest, LineTakesTheSurfacesWidthAndTheFormsHeight) {
  EXPECT_EQ(Do("LINE 1.5 2.5 3.5 4"), Texts{"Line 5075 4375 5175 4300"});
}

TEST_F(ShapesTest, LineHasAWholeLastInputAlone) {
  EXPECT_EQ(Do("LINE .5 .5 .5 .5"), Texts{"Line 5025 4475 5025 4500"});
  EXPECT_EQ(Do("LINE 0 0 0 1.5"), Texts{"Line 5000 4500 5000 4400"});
}

TEST_F(ShapesTest, LineRoundsTheHeightOfItsEndOnce) {
  turtle.Resolution = 0.5;
  EXPECT_EQ(Do("LINE 0 0 0 3"), Texts{"Line 5000 4500 5000 4498"});
  EXPECT_EQ(Do("LINE 0 0 0 1"), Texts{"Line 5000 4500 5000 4500"});
  controls.Form1.SetHeight(9001);
  EXPECT_EQ(Do("LINE 0 0 0 1"), Texts{"Line 5000 4500.5 5000 4500"});
}

TEST_F(ShapesTest, LineWithALargeLastInputEndsAtHeightZero) {
  EXPECT_EQ(Do("LINE 0 0 0 1000"), Texts{"Line 5000 4500 5000 0"});
  EXPECT_EQ(Do("LINE 0 0 0 -600"), Texts{"Line 5000 4500 5000 0"});
  EXPECT_EQ(Do("LINE 0 0 0 700"), Texts{"Line 5000 4500 5000 -30500"});
}

TEST_F(ShapesTest, LineWhoseLastProductOverflowsEndsAtHeightZero) {
  turtle.Resolution = 1E308;
  EXPECT_EQ(Do("LINE 0 0 0 2"), Texts{"Line 5000 4500 5000 0"});
}

TEST_F(ShapesTest, LineLastInputBeyond16BitsCountsAsZero) {
  EXPECT_EQ(Do("LINE 0 0 0 40000"), Texts{"Line 5000 4500 5000 4500"});
}

TEST_F(ShapesTest, MissingWordsCountAsZeroWithoutAMessage) {
  EXPECT_EQ(Do("LINE 1", "CIRCLE", "DOT", "STAMPRECT"), Texts({"Line 5050 4500 5000 4500", "Circle 5000 5760 0",
                                                               "PSet 5000 4500 16777215", "Box 1000 2000 1000 2000"}));
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(ShapesTest, LineRGBDrawsInItsColourAndPutsThePensBack) {
  EXPECT_EQ(Do("LINERGB 0 0 1 1 255"), Texts({"ForeColor=255", "Line 5000 4500 5050 4450", "ForeColor=16777215"}));
  EXPECT_EQ(Pixels.LastStroke.Color, 255);
}

TEST_F(ShapesTest, LineRGBRoundsItsColourHalfToEven) {
  EXPECT_EQ(Do("LINERGB 0 0 1 1 254.5").front(), "ForeColor=254");
  EXPECT_EQ(Do("LINERGB 0 0 1 1 3000000000").front(), "ForeColor=0");
}

// Ellipses.

/// The end points of a recorded chain of chords, in its order.
std::vector<PixelPoint> Chords(const Texts& operations) {
  std::vector<PixelPoint> ends;
  for (const std::string& operation : operations) {
    PixelPoint end;
    if (std::sscanf(operation.c_str(), "LineTo %lf %lf", &end.X, &end.Y) == 2) ends.push_back(end);
  }
  return ends;
}

TEST_F(ShapesTest, EllipseIsAChainOf51Chords) {
  const Texts operations = Do("ELLIPSE 1 2 4 2 0");
  EXPECT_EQ(operations.size(), 53U);
  EXPECT_EQ(operations[0], "CurrentX=5250");
  EXPECT_EQ(operations[1], "CurrentY=4400");
  EXPECT_EQ(Chords(operations).size(), 51U);
}

TEST_F(ShapesTest, EllipseEndsJustBeyondItsStart) {
  const auto ends = Chords(Do("ELLIPSE 0 0 4 2 0"));
  EXPECT_NEAR(ends[49].X, 5200, 0.01);
  EXPECT_NEAR(ends[49].Y, 4500, 0.01);
  EXPECT_NEAR(ends[50].X, ends[0].X, 0.01);
  EXPECT_NEAR(ends[50].Y, ends[0].Y, 0.01);
}

TEST_F(ShapesTest, EllipseOfAngleZeroIsLying) {
  const auto ends = Chords(Do("ELLIPSE 0 0 4 2 0"));
  const double t = 6.2831853 / 50;
  EXPECT_NEAR(ends[0].X, 5000 + 200 * std::cos(t), 0.01);
  EXPECT_NEAR(ends[0].Y, 4500 + 100 * std::sin(t), 0.01);
  EXPECT_NEAR(ends[24].X, 4800, 0.01);
}

TEST_F(ShapesTest, EllipseOfAngle90IsStanding) {
  const Texts operations = Do("ELLIPSE 0 0 4 2 90");
  const auto ends = Chords(operations);
  // The first half-axis now points up: the chain begins above the centre.
  EXPECT_NEAR(Picture1.CurrentX(), ends[0].X, 0.01);
  EXPECT_NEAR(ends[49].X, 5000, 0.01);
  EXPECT_NEAR(ends[49].Y, 4300, 0.01);
  EXPECT_NEAR(ends[24].Y, 4700, 0.01);
}

TEST_F(ShapesTest, EllipseTurnsAgainstTheClock) {
  const auto ends = Chords(Do("ELLIPSE 0 0 4 2 30"));
  EXPECT_NEAR(ends[49].X, 5000 + 200 * std::cos(3.14159265 / 6), 0.01);
  EXPECT_NEAR(ends[49].Y, 4500 - 200 * std::sin(3.14159265 / 6), 0.01);
}

TEST_F(ShapesTest, EllipseHasAWholeAngle) {
  EXPECT_EQ(Do("ELLIPSE 0 0 4 2 30.5"), Do("ELLIPSE 0 0 4 2 30"));
  EXPECT_EQ(Do("ELLIPSE 0 0 4 2 40000"), Do("ELLIPSE 0 0 4 2 0"));
}

TEST_F(ShapesTest, EllipseTakesFractionsOfSteps) {
  EXPECT_EQ(Do("ELLIPSE .5 .5 .5 .5 0")[0], "CurrentX=5050");
  EXPECT_EQ(Recorder.Operations[1], "CurrentY=4475");
}

TEST_F(ShapesTest, EllipseBeyondSinglesDrawsNothing) {
  EXPECT_EQ(Do("ELLIPSE 0 0 1" + std::string(40, '0') + " 1 0"), Nothing);
}

TEST_F(ShapesTest, EllipseRGBHasTheColourBeforeTheAngle) {
  const Texts plain = Do("ELLIPSE 0 0 4 2 90");
  const Texts coloured = Do("ELLIPSERGB 0 0 4 2 255 90");
  EXPECT_EQ(coloured.front(), "ForeColor=255");
  EXPECT_EQ(coloured.back(), "ForeColor=16777215");
  EXPECT_EQ(Texts(coloured.begin() + 1, coloured.end() - 1), plain);
  EXPECT_EQ(Pixels.LastStroke.Color, 255);
}

// Ovals and boxes.

TEST_F(ShapesTest, StampOvalTakesFullWidthAndHeight) {
  EXPECT_EQ(Do("STAMPOVAL 4 2"), Texts{"Circle 1000 2000 100 0.5"});
  EXPECT_EQ(Do("STAMPOVAL 2 4"), Texts{"Circle 1000 2000 100 2"});
  EXPECT_EQ(Do("STAMPOVAL 3 3"), Texts{"Circle 1000 2000 75 1"});
  EXPECT_EQ(Do("STAMPOVAL 2.5 1.25"), Texts{"Circle 1000 2000 62.5 0.5"});
}

TEST_F(ShapesTest, StampOvalOfNoWidthOrHeightDrawsNothing) {
  EXPECT_EQ(Do("STAMPOVAL 0 3"), Nothing);
  EXPECT_EQ(Do("STAMPOVAL 3 0"), Nothing);
  EXPECT_EQ(Do("STAMPOVAL 0 0"), Nothing);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(ShapesTest, StampRectIsABoxAroundTheTurtle) {
  EXPECT_EQ(Do("STAMPRECT 4 2"), Texts{"Box 900 1950 1100 2050"});
  EXPECT_EQ(Do("STAMPRECT 2.5 0"), Texts{"Box 937.5 2000 1062.5 2000"});
}

TEST_F(ShapesTest, StampOvalRGBPutsBothColoursBack) {
  Picture1.SetFillColor(7);
  EXPECT_EQ(Do("STAMPOVALRGB 4 2 255"),
            Texts({"ForeColor=255", "FillColor=255", "Circle 1000 2000 100 0.5", "ForeColor=16777215", "FillColor=7"}));
  EXPECT_EQ(Pixels.LastStroke.Color, 255);
  EXPECT_EQ(Pixels.LastFilling.Color, 255);
}

TEST_F(ShapesTest, StampOvalRGBPutsTheColoursBackWhereTheGuardHolds) {
  Picture1.SetFillColor(7);
  EXPECT_EQ(Do("STAMPOVALRGB 4 0 255"), Texts({"ForeColor=255", "FillColor=255", "ForeColor=16777215", "FillColor=7"}));
}

TEST_F(ShapesTest, StampRectRGBPutsBothColoursBack) {
  Picture1.SetFillColor(7);
  EXPECT_EQ(Do("STAMPRECTRGB 4 2 255"),
            Texts({"ForeColor=255", "FillColor=255", "Box 900 1950 1100 2050", "ForeColor=16777215", "FillColor=7"}));
}

// The pen.

struct PenRow {
  const char* Line;
  bool DrawnWithThePenUp;
};

void PrintTo(const PenRow& one, std::ostream* out) { *out << Quoted(one.Line) << ", " << one.DrawnWithThePenUp; }

class PenUpShape : public DrawingTest, public testing::WithParamInterface<PenRow> {};

TEST_P(PenUpShape, IsDrawnOnlyIfItIsAStamp) {
  turtle.PenState = PenPosition::Up;
  Do(GetParam().Line);
  EXPECT_EQ(!Pixels.Calls.empty(), GetParam().DrawnWithThePenUp);
}

TEST_P(PenUpShape, IsDrawnWithThePenErasing) {
  Do("PE", GetParam().Line);
  EXPECT_FALSE(Pixels.Calls.empty());
}

TEST_P(PenUpShape, LeavesTheTurtleAndAsksNoFence) {
  FenceIn();
  turtle.TurtleX = -7000;
  Do(GetParam().Line);
  EXPECT_EQ(turtle.TurtleX, -7000);
  EXPECT_EQ(turtle.TurtleY, 2000);
  EXPECT_EQ(turtle.TurtleDir, 0);
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_FALSE(Pixels.Calls.empty());
}

INSTANTIATE_TEST_SUITE_P(Shapes, PenUpShape,
                         testing::Values(PenRow{"POINT 1 2 3", true}, PenRow{"DOT 1 2", false},
                                         PenRow{"CIRCLE 0 0 2", false}, PenRow{"LINE 0 0 1 1", false},
                                         PenRow{"ELLIPSE 0 0 4 2 0", false}, PenRow{"LINERGB 0 0 1 1 255", false},
                                         PenRow{"ELLIPSERGB 0 0 4 2 255 0", false}, PenRow{"STAMPCIRCLE 2", true},
                                         PenRow{"STAMPOVAL 4 2", true}, PenRow{"STAMPRECT 2 2", true},
                                         PenRow{"STAMPOVALRGB 4 2 255", true}, PenRow{"STAMPRECTRGB 2 2 255", true}));

TEST_F(ShapesTest, LineRGBWithThePenUpStillSetsAndPutsBackItsColour) {
  turtle.PenState = PenPosition::Up;
  EXPECT_EQ(Do("LINERGB 0 0 1 1 255"), Texts({"ForeColor=255", "ForeColor=16777215"}));
}

// FILL and FILLSTYLE.

struct FillRow {
  const char* Line;
  Texts Operations;
};

void PrintTo(const FillRow& one, std::ostream* out) { *out << Quoted(one.Line); }

class FillInput : public DrawingTest, public testing::WithParamInterface<FillRow> {};

TEST_P(FillInput, IsReducedOrRefused) { EXPECT_EQ(Do(GetParam().Line), GetParam().Operations); }

INSTANTIATE_TEST_SUITE_P(
    typedLines, FillInput,
    testing::Values(FillRow{"FILL 4", {"FillColor=128"}}, FillRow{"FILL 20", {"FillColor=128"}},
                    FillRow{"FILL 3.5", {"FillColor=128"}}, FillRow{"FILL 2 + 2", {"FillColor=128"}},
                    FillRow{"FILL", {"FillColor=0"}}, FillRow{"FILL -1", {}}, FillRow{"FILLSTYLE 7", {"FillStyle=7"}},
                    FillRow{"FILLSTYLE 8", {"FillStyle=0"}}, FillRow{"FILLSTYLE 13", {"FillStyle=5"}},
                    FillRow{"FILLSTYLE 2.5", {"FillStyle=2"}}, FillRow{"FILLSTYLE", {"FillStyle=0"}},
                    FillRow{"FILLSTYLE -1", {}}, FillRow{"FILLSTYLE -8", {"FillStyle=0"}}));

TEST_F(ShapesTest, FillAndFillStyleHaveNoTestForAMissingInput) {
  Do("FILL", "FILLSTYLE");
  EXPECT_TRUE(services.Boxes.empty());
}

}  // namespace
}  // namespace zerimo
