#include "graphics/flood_fill.h"

#include "graphics/drawing_test.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using FloodFillTest = DrawingTest;

TEST_F(FloodFillTest, CountsInPixelsFillsAndLeavesOutlinesBehind) {
  EXPECT_EQ(Do("FLOODFILL 4"), Texts({"ScaleMode=3", "ScaleMode=3", "FillStyle=0", "FillColor=128",
                                      "FloodFill 67 133 8388736", "ScaleMode=1", "FillStyle=1"}));
  EXPECT_EQ(Pixels.Calls, Texts{"FloodFill 67 133 128"});
}

TEST_F(FloodFillTest, RefreshesTwiceBeforeTheFrameDoes) {
  Do("FLOODFILL 4");
  EXPECT_EQ(Refreshes, 3);
}

TEST_F(FloodFillTest, CircleAfterAFillIsAnOutlineThoughSolidWasSet) {
  Do("FILLSTYLE 0", "FLOODFILL 4", "CIRCLE 0 0 2");
  EXPECT_EQ(Pixels.LastFilling.Style, FillPattern::Transparent);
  EXPECT_EQ(Pixels.LastFilling.Color, 128);
}

TEST_F(FloodFillTest, RGBFillsWithAColourValue) {
  Do("FLOODFILLRGB 255");
  EXPECT_EQ(Pixels.Calls, Texts{"FloodFill 67 133 255"});
  EXPECT_EQ(Picture1.FillColor(), 255);
}

struct FillInputRow {
  const char* Line;
  Colour Fill;
};

void PrintTo(const FillInputRow& one, std::ostream* out) { *out << Quoted(one.Line); }

class FloodFillInput : public DrawingTest, public testing::WithParamInterface<FillInputRow> {};

TEST_P(FloodFillInput, IsOneWordAndNotReduced) {
  Picture1.SetFillColor(77);
  Do(GetParam().Line);
  EXPECT_EQ(Pixels.Calls, Texts{"FloodFill 67 133 " + std::to_string(GetParam().Fill)});
  EXPECT_TRUE(services.Boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(typedLines, FloodFillInput,
                         testing::Values(FillInputRow{"FLOODFILL 20", 77}, FillInputRow{"FLOODFILL -1", 77},
                                         FillInputRow{"FLOODFILL 40000", 77}, FillInputRow{"FLOODFILL 4 9", 128},
                                         FillInputRow{"FLOODFILL 3.5", 128}, FillInputRow{"FLOODFILL", 0},
                                         FillInputRow{"FLOODFILL 3000000000", 0}, FillInputRow{"FLOODFILLRGB", 0},
                                         FillInputRow{"FLOODFILLRGB 254.5", 254},
                                         FillInputRow{"FLOODFILLRGB 255 9", 255}));

TEST_F(FloodFillTest, FillsWithThePenUp) {
  Do("PU", "FLOODFILL 4");
  EXPECT_EQ(Pixels.Calls.size(), 1U);
}

TEST_F(FloodFillTest, PixelIsRoundedHalfToEven) {
  turtle.TurtleX = 7.5;
  turtle.TurtleY = 22.5;
  Do("FLOODFILL 4");
  EXPECT_EQ(Pixels.Calls, Texts{"FloodFill 0 2 128"});
}

TEST_F(FloodFillTest, OutsideOfTheSurfaceNothingIsPainted) {
  turtle.TurtleX = -100;
  EXPECT_EQ(Do("FLOODFILL 4")[4], "FloodFill -7 133 -1");
  EXPECT_TRUE(Pixels.Calls.empty());
  EXPECT_EQ(Picture1.FillColor(), 128);
  EXPECT_EQ(Picture1.ScaleMode(), Scale::Units);
}

TEST_F(FloodFillTest, BelowTheHeightOfTheSurfaceNothingIsPainted) {
  turtle.TurtleY = 8010;
  EXPECT_EQ(Do("FLOODFILL 4")[4], "FloodFill 67 534 -1");
  EXPECT_TRUE(Pixels.Calls.empty());
  Picture1.SetHeight(9000);
  EXPECT_EQ(Do("FLOODFILL 4")[4], "FloodFill 67 534 8388736");
}

TEST_F(FloodFillTest, PositionBeyond16BitsLeavesTheScaleInPixelsUntilTheNextFill) {
  turtle.TurtleX = 15.0 * 32768;
  EXPECT_EQ(Do("FLOODFILL 4"), Texts{"ScaleMode=3"});
  EXPECT_EQ(Picture1.ScaleMode(), Scale::Pixels);
  EXPECT_EQ(Refreshes, 2);
  turtle.TurtleX = 1000;
  Do("FLOODFILL 4");
  EXPECT_EQ(Picture1.ScaleMode(), Scale::Units);
}

TEST_F(FloodFillTest, ProceduresFillFromAPixel) {
  floodFills.FloodFill(3, 4, 2.5);
  floodFills.FloodFillRGB(5, 6, 1000);
  EXPECT_EQ(Pixels.Calls, Texts({"FloodFill 3 4 32768", "FloodFill 5 6 1000"}));
}

}  // namespace
}  // namespace zerimo
