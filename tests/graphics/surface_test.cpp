#include "graphics/surface.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>

#include "base/failure.h"
#include "graphics/operation_texts.h"
#include "graphics/spy_canvas.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class SurfaceTest : public testing::Test {
 protected:
  SurfaceTest() {
    Picture1.CreateCanvas(1500, 1500);
    Picture1.SetHeight(1500);
    Picture1.AddRecorder(Recorder);
  }

  SpyCanvas Pixels;
  OperationTexts Recorder;
  Surface Picture1{"Picture1", Pixels};
};

TEST_F(SurfaceTest, BeginsWithTheValuesOfItsDesign) {
  EXPECT_EQ(Picture1.BackColor(), 8388736);
  EXPECT_EQ(Picture1.ForeColor(), 0xFFFFFF);
  EXPECT_EQ(Picture1.FillStyle(), FillPattern::Solid);
  EXPECT_EQ(Picture1.FillColor(), 0);
  EXPECT_EQ(Picture1.DrawMode(), DrawingMode::CopyPen);
  EXPECT_EQ(Picture1.ScaleMode(), Scale::Units);
}

TEST_F(SurfaceTest, WritesThatTakePlaceAreReported) {
  Picture1.SetBackColor(1);
  Picture1.SetForeColor(2);
  Picture1.SetFillColor(3);
  Picture1.SetFillStyle(FillPattern::UpwardDiagonal);
  Picture1.SetDrawMode(DrawingMode{5});
  Picture1.SetDrawWidth(6);
  Picture1.SetScaleMode(Scale::Pixels);
  Picture1.SetCurrentX(7.5);
  Picture1.SetCurrentY(8.5);
  Picture1.SetFontSize(9.5);
  Picture1.SetHeight(10);
  EXPECT_EQ(Recorder.Operations,
            Texts({"BackColor=1", "ForeColor=2", "FillColor=3", "FillStyle=4", "DrawMode=5", "DrawWidth=6",
                   "ScaleMode=3", "CurrentX=7.5", "CurrentY=8.5", "Font.Size=9.5", "Height=10"}));
}

TEST_F(SurfaceTest, WriteOfTheSameValueIsReportedToo) {
  Picture1.SetForeColor(2);
  Picture1.SetForeColor(2);
  EXPECT_EQ(Recorder.Operations, Texts({"ForeColor=2", "ForeColor=2"}));
}

TEST_F(SurfaceTest, RemovedRecorderIsToldNothing) {
  Picture1.RemoveRecorder(Recorder);
  Picture1.SetForeColor(2);
  Picture1.Cls();
  EXPECT_TRUE(Recorder.Operations.empty());
}

TEST_F(SurfaceTest, RefusedWritesFailAndChangeNothing) {
  EXPECT_THROW(Picture1.SetFillStyle(FillPattern{8}), Failure);
  EXPECT_THROW(Picture1.SetFillStyle(FillPattern{-1}), Failure);
  EXPECT_THROW(Picture1.SetDrawMode(DrawingMode{0}), Failure);
  EXPECT_THROW(Picture1.SetDrawMode(DrawingMode{17}), Failure);
  EXPECT_THROW(Picture1.SetDrawWidth(0), Failure);
  EXPECT_THROW(Picture1.SetScaleMode(Scale{2}), Failure);
  EXPECT_THROW(Picture1.SetFontSize(0), Failure);
  EXPECT_THROW(Picture1.SetFontSize(2160.5), Failure);
  EXPECT_THROW(Picture1.SetHeight(-1), Failure);
  EXPECT_THROW(Picture1.SetCurrentX(1E39), Failure);
  EXPECT_THROW(Picture1.SetCurrentY(-1E39), Failure);
  EXPECT_TRUE(Recorder.Operations.empty());
  EXPECT_EQ(Picture1.DrawMode(), DrawingMode::CopyPen);
  EXPECT_EQ(Picture1.CurrentX(), 0);
}

TEST_F(SurfaceTest, OnePixelIsFifteenUnitsRoundedHalfToEven) {
  Picture1.Line(0, 7, 7.5, 8);
  Picture1.Line(22.5, 37.5, -7.5, -22.5);
  EXPECT_EQ(Pixels.Calls, Texts({"Line 0 0 0 1", "Line 2 2 0 -2"}));
}

TEST_F(SurfaceTest, ScaleInPixelsTakesCoordinatesAsTheyAre) {
  Picture1.SetScaleMode(Scale::Pixels);
  Picture1.Line(1, 2, 3.5, 4.5);
  Picture1.Circle(10, 20, 5);
  EXPECT_EQ(Pixels.Calls, Texts({"Line 1 2 4 4", "Ellipse 10 20 5 5"}));
}

TEST_F(SurfaceTest, LinesAndBoxesLeaveTheCurrentPointAtTheirEnd) {
  Picture1.Line(0, 0, 150, 300);
  EXPECT_EQ(Picture1.CurrentX(), 150);
  EXPECT_EQ(Picture1.CurrentY(), 300);
  Picture1.LineTo(450, 600);
  Picture1.Box(0, 0, 15, 30);
  EXPECT_EQ(Picture1.CurrentX(), 15);
  EXPECT_EQ(Picture1.CurrentY(), 30);
  EXPECT_EQ(Pixels.Calls, Texts({"Line 0 0 10 20", "Line 10 20 30 40", "Box 0 0 1 2"}));
  EXPECT_EQ(Recorder.Operations, Texts({"Line 0 0 150 300", "LineTo 450 600", "Box 0 0 15 30"}));
}

TEST_F(SurfaceTest, CoordinatesBeyondSinglesFailAndDrawNothing) {
  EXPECT_THROW(Picture1.Line(0, 0, 1E39, 0), Failure);
  EXPECT_THROW(Picture1.Box(0, 0, 0, -1E39), Failure);
  EXPECT_THROW(Picture1.Circle(0, 0, 1E39), Failure);
  EXPECT_THROW(Picture1.PSet(1E39, 0, 0), Failure);
  EXPECT_TRUE(Pixels.Calls.empty());
  EXPECT_TRUE(Recorder.Operations.empty());
}

TEST_F(SurfaceTest, HugeCoordinatesReachTheCanvas) {
  Picture1.Line(0, 0, 3E38, 0);
  EXPECT_EQ(Pixels.Calls.size(), 1U);
}

TEST_F(SurfaceTest, RadiusAppliesToTheLongerAxis) {
  Picture1.Circle(150, 150, 150);
  Picture1.Circle(150, 150, 150, 0.5);
  Picture1.Circle(150, 150, 150, 2);
  EXPECT_EQ(Pixels.Calls, Texts({"Ellipse 10 10 10 10", "Ellipse 10 10 10 5", "Ellipse 10 10 5 10"}));
}

TEST_F(SurfaceTest, ShapesGetPenAndInside) {
  Picture1.SetForeColor(2);
  Picture1.SetFillColor(3);
  Picture1.SetFillStyle(FillPattern::UpwardDiagonal);
  Picture1.SetDrawMode(DrawingMode{5});
  Picture1.SetDrawWidth(6);
  Picture1.Box(0, 0, 15, 15);
  EXPECT_EQ(Pixels.LastStroke.Color, 2);
  EXPECT_EQ(Pixels.LastStroke.DrawMode, DrawingMode{5});
  EXPECT_EQ(Pixels.LastStroke.Width, 6);
  EXPECT_EQ(Pixels.LastFilling.Color, 3);
  EXPECT_EQ(Pixels.LastFilling.Style, FillPattern::UpwardDiagonal);
}

TEST_F(SurfaceTest, PointHasItsOwnColourAndTheWidthOfLines) {
  Picture1.SetDrawWidth(6);
  Picture1.PSet(150, 300, 77);
  EXPECT_EQ(Pixels.LastStroke.Color, 77);
  EXPECT_EQ(Pixels.LastStroke.Width, 6);
  EXPECT_EQ(Pixels.Calls, Texts{"Point 10 20"});
}

TEST_F(SurfaceTest, PointIsReadInsideOfTheCanvasAlone) {
  EXPECT_EQ(Picture1.Point(0, 0), 8388736);
  EXPECT_EQ(Picture1.Point(1485, 1485), 8388736);
  EXPECT_EQ(Picture1.Point(1500, 0), -1);
  EXPECT_EQ(Picture1.Point(0, 1500), -1);
  EXPECT_EQ(Picture1.Point(-15, 0), -1);
  EXPECT_EQ(Picture1.Point(0, -15), -1);
}

TEST_F(SurfaceTest, PartHiddenByASmallerHeightIsDrawnOn) {
  Picture1.SetHeight(150);
  Picture1.Line(0, 1200, 150, 1200);
  EXPECT_EQ(Pixels.Calls, Texts{"Line 0 80 10 80"});
}

TEST_F(SurfaceTest, PartHiddenByASmallerHeightHasNoColour) {
  Picture1.SetHeight(150);
  EXPECT_EQ(Picture1.Point(0, 135), 8388736);
  EXPECT_EQ(Picture1.Point(0, 150), -1);
  Picture1.SetScaleMode(Scale::Pixels);
  EXPECT_EQ(Picture1.Point(0, 9), 8388736);
  EXPECT_EQ(Picture1.Point(0, 10), -1);
  Picture1.SetHeight(151);
  EXPECT_EQ(Picture1.Point(0, 10), 8388736);
  EXPECT_EQ(Picture1.Point(0, 11), -1);
}

TEST_F(SurfaceTest, BackgroundColourClears) {
  Picture1.SetBackColor(255);
  EXPECT_EQ(Pixels.Calls, Texts{"Clear 255"});
}

TEST_F(SurfaceTest, ClsClearsToTheBackground) {
  Picture1.Cls();
  EXPECT_EQ(Pixels.Calls, Texts{"Clear 8388736"});
  EXPECT_EQ(Recorder.Operations, Texts{"Cls"});
}

TEST_F(SurfaceTest, TextIsPrintedAtTheCurrentPoint) {
  Picture1.SetCurrentX(150);
  Picture1.SetCurrentY(300);
  Picture1.SetFontSize(14.5);
  Picture1.Print("A B");
  EXPECT_EQ(Pixels.Calls, Texts{"Print A B 10 20 14.5 16777215"});
}

TEST_F(SurfaceTest, FloodFillTakesPixelsAndTheFillColour) {
  Picture1.SetFillColor(255);
  Picture1.ExtFloodFill(3, 4, 8388736);
  Picture1.ExtFloodFill(-3, 4, -1);
  EXPECT_EQ(Pixels.Calls, Texts{"FloodFill 3 4 255"});
  EXPECT_EQ(Recorder.Operations, Texts({"FillColor=255", "FloodFill 3 4 8388736", "FloodFill -3 4 -1"}));
}

TEST_F(SurfaceTest, PropertiesAreReadUnderTheirNames) {
  Texts names;
  Picture1.ReadProperties([&](const char* name, const PropertyValue&) { names.push_back(name); });
  EXPECT_EQ(names,
            Texts({"Visible", "Left", "Top", "Width", "Height", "BackColor", "ForeColor", "FillColor", "FillStyle",
                   "DrawMode", "DrawWidth", "ScaleMode", "CurrentX", "CurrentY", "Font.Size", "ToolTipText"}));
}

TEST_F(SurfaceTest, PictureThatIsMissingFailsAndIsNotTold) {
  EXPECT_THROW(Picture1.SetPicture("no such picture.bmp", "X"), Failure);
  EXPECT_TRUE(Recorder.Operations.empty());
}

TEST_F(SurfaceTest, PictureIsReportedUnderTheSystemsName) {
  const auto file = std::filesystem::temp_directory_path() / "zerimo_surface_test_picture";
  std::ofstream(file) << "x";
  Picture1.SetPicture(file, "C:\\A.BMP");
  std::filesystem::remove(file);
  EXPECT_EQ(Recorder.Operations, Texts{"Picture C:\\A.BMP"});
}

}  // namespace
}  // namespace zerimo
