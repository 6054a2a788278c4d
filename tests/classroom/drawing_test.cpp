#include "classroom/drawings/drawing.h"

#include <gtest/gtest.h>

#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

constexpr Colour Paper = 0xFFFFFF;

class DrawingTest : public testing::Test {
 protected:
  DrawingTest() {
    Picture1.Width = 15360;
    Picture1.SetHeight(11520);
    Picture1.SetBackColor(Paper);
    Picture1.SetForeColor(0);
    Picture1.AddRecorder(Recorder);
  }

  EmptyCanvas Pixels;
  Surface Picture1{"Picture1", Pixels};
  DrawingRecorder Recorder;

  const Drawing& Drawn() const { return Recorder.Drawn(); }
};

TEST_F(DrawingTest, KeepsLinesAndFigures) {
  Picture1.Line(0, 0, 1000, 0);
  Picture1.Circle(500, 500, 300);
  Picture1.Print("HI");
  ASSERT_EQ(Drawn().Lines.size(), 1U);
  EXPECT_EQ(Drawn().Lines[0].Length(), 1000);
  ASSERT_EQ(Drawn().Figures.size(), 2U);
  EXPECT_EQ(Drawn().Figures[0].Across, 300);
  EXPECT_EQ(Drawn().Figures[1].Text, "HI");
}

TEST_F(DrawingTest, ABoxIsItsSides) {
  Picture1.Box(0, 0, 1000, 500);
  EXPECT_EQ(Drawn().Lines.size(), 4U);
}

TEST_F(DrawingTest, AEraserTakesAwayWhatItCovers) {
  Picture1.Line(0, 0, 1000, 0);
  Picture1.SetForeColor(Paper);
  Picture1.Line(400, 0, 600, 0);
  ASSERT_EQ(Drawn().Lines.size(), 2U);
  EXPECT_NEAR(Drawn().Lines[0].Length(), 392, 1);
  EXPECT_NEAR(Drawn().Lines[1].From.X, 608, 1);
}

TEST_F(DrawingTest, ClearingTakesAwayAll) {
  Picture1.Line(0, 0, 1000, 0);
  Picture1.Cls();
  EXPECT_TRUE(Drawn().IsEmpty());
  EXPECT_TRUE(Recorder.HasDrawn());
  EXPECT_FALSE(Recorder.WasWiped());
}

TEST_F(DrawingTest, AnotherBackgroundWipesWhatWasDrawn) {
  Picture1.SetBackColor(255);
  EXPECT_FALSE(Recorder.WasWiped());
  Picture1.Line(0, 0, 1000, 0);
  Picture1.SetBackColor(Paper);
  EXPECT_TRUE(Recorder.WasWiped());
}

TEST_F(DrawingTest, TellsHowMuchLiesOutside) {
  EXPECT_EQ(Recorder.PartOutside(Picture1), 0);
  Picture1.Line(0, 0, 1000, 0);
  Picture1.Line(0, 0, -1000, 0);
  EXPECT_EQ(Recorder.PartOutside(Picture1), 0.5);
  Picture1.Line(500, 15, -1500, 15);
  EXPECT_EQ(Recorder.PartOutside(Picture1), 0.625);
}

TEST_F(DrawingTest, TellsHowMuchOfTheCirclesIsCutOff) {
  EXPECT_EQ(Recorder.PartCutOff(Picture1), 0);
  Picture1.Circle(0, 500, 300);
  EXPECT_NEAR(Recorder.PartCutOff(Picture1), 0.5, 0.01);
  Picture1.Cls();
  Picture1.Circle(5000, 0, 300);
  EXPECT_NEAR(Recorder.PartCutOff(Picture1), 0.5, 0.01);
  Picture1.Cls();
  Picture1.Circle(5000, static_cast<double>(Picture1.Height()), 300);
  EXPECT_NEAR(Recorder.PartCutOff(Picture1), 0, 0.01);
}

TEST_F(DrawingTest, TellsHowMuchIsWhollyOutside) {
  Picture1.Line(500, 0, -1500, 0);
  Picture1.Line(-1500, 0, -2500, 0);
  EXPECT_EQ(Recorder.PartWhollyOutside(Picture1), 0);
  Picture1.Line(-500, 500, -1500, 500);
  EXPECT_EQ(Recorder.PartWhollyOutside(Picture1), 0.25);
  Picture1.Cls();
  Picture1.Circle(-200, 500, 300);
  EXPECT_EQ(Recorder.PartWhollyOutside(Picture1), 0);
  Picture1.Cls();
  Picture1.Circle(-500, 500, 300);
  EXPECT_EQ(Recorder.PartWhollyOutside(Picture1), 1);
}

TEST_F(DrawingTest, AGroundThatRisesFromBelowIsNotOutside) {
  Picture1.Box(-500, 11000, 16000, 13000);
  EXPECT_EQ(Recorder.PartOutside(Picture1), 0);
  EXPECT_EQ(Recorder.PartWhollyOutside(Picture1), 0);
}

TEST_F(DrawingTest, IsBlankWhenAllIsClearedOrErased) {
  EXPECT_TRUE(Recorder.IsBlank());
  Picture1.Line(0, 0, 1000, 0);
  EXPECT_FALSE(Recorder.IsBlank());
  Picture1.SetForeColor(Paper);
  Picture1.Line(0, 0, 1000, 0);
  EXPECT_TRUE(Recorder.IsBlank());
  Picture1.SetForeColor(0);
  Picture1.Line(0, 0, 1000, 0);
  Picture1.Cls();
  EXPECT_TRUE(Recorder.IsBlank());
}

TEST_F(DrawingTest, TellsWhatLeavesABand) {
  Picture1.Line(0, 5760, 9000, 5760);
  EXPECT_FALSE(Recorder.LeavesBand(Picture1, 0.25, 0.75));
  Picture1.Circle(500, 8000, 300);
  EXPECT_FALSE(Recorder.LeavesBand(Picture1, 0.25, 0.75));
  EXPECT_TRUE(Recorder.LeavesBand(Picture1, 0.25, 0.5));
  Picture1.Line(0, 5760, 0, 2000);
  EXPECT_TRUE(Recorder.LeavesBand(Picture1, 0.25, 0.75));
}

TEST_F(DrawingTest, TravelsInAFile) {
  const TempFolder disk;
  Picture1.Line(0, 0, 1000.5, 0);
  Picture1.Print("\xE4");
  WriteDrawing(disk.Path / "drawing.json", Drawn());
  const std::optional<Drawing> back = ReadDrawing(disk.Path / "drawing.json");
  ASSERT_TRUE(back);
  EXPECT_EQ(back->Lines[0].To.X, 1000.5);
  EXPECT_EQ(back->Figures.size(), 1U);
  disk.Write("half.json", "{\"lines\":[[1]]");
  EXPECT_FALSE(ReadDrawing(disk.Path / "half.json"));
  EXPECT_FALSE(ReadDrawing(disk.Path / "none.json"));
}

TEST(Joined, LinesThatGoStraightOnAreOne) {
  const Line first{{0, 0}, {10, 0}, 0};
  EXPECT_EQ(Joined({first, {{10, 0}, {30, 0}, 0}}).size(), 1U);
  EXPECT_EQ(Joined({first, {{10, 0}, {10, 30}, 0}}).size(), 2U);
  EXPECT_EQ(Joined({first, {{10, 0}, {0, 0}, 0}}).size(), 2U);
  EXPECT_EQ(Joined({first, {{10, 0}, {30, 0}, 255}}).size(), 2U);
}

}  // namespace
}  // namespace zerimo::classroom
