#include <gtest/gtest.h>

#include <sstream>

#include "batch/journal.h"
#include "files/temp_folder.h"

namespace zerimo::batch {
namespace {

class SurfaceTraceTest : public testing::Test {
 protected:
  SurfaceTraceTest() { surface.AddRecorder(trace); }

  std::string Event(const std::string& rest) { return "{\"event\":\"surface\",\"op\":" + rest + "}\n"; }

  std::ostringstream transcript;
  Journal journal{&transcript, nullptr};
  EmptyCanvas pixels;
  Surface surface{"Picture1", pixels};
  SurfaceTrace trace{journal};
};

TEST_F(SurfaceTraceTest, LineHasItsEnds) {
  surface.Line(0.1, 2, 3, -4);
  EXPECT_EQ(transcript.str(), Event(R"("Line","x1":0.1,"y1":2,"x2":3,"y2":-4)"));
}

TEST_F(SurfaceTraceTest, BoxHasItsDiagonal) {
  surface.Box(1, 2, 3, 4);
  EXPECT_EQ(transcript.str(), Event(R"("Box","x1":1,"y1":2,"x2":3,"y2":4)"));
}

TEST_F(SurfaceTraceTest, LineToHasItsEndAlone) {
  surface.LineTo(3, 4);
  EXPECT_EQ(transcript.str(), Event(R"("LineTo","x2":3,"y2":4)"));
}

TEST_F(SurfaceTraceTest, CircleHasAnAspectOnlyIfOneIsGiven) {
  surface.Circle(1, 2, 3);
  surface.Circle(1, 2, 3, 0.5);
  EXPECT_EQ(transcript.str(),
            Event(R"("Circle","x":1,"y":2,"radius":3)") + Event(R"("Circle","x":1,"y":2,"radius":3,"aspect":0.5)"));
}

TEST_F(SurfaceTraceTest, PointHasAColour) {
  surface.PSet(1, 2, 255);
  EXPECT_EQ(transcript.str(), Event(R"("PSet","x":1,"y":2,"color":255)"));
}

TEST_F(SurfaceTraceTest, PrintHasItsText) {
  surface.Print("A B");
  EXPECT_EQ(transcript.str(), Event(R"("Print","text":"A B")"));
}

TEST_F(SurfaceTraceTest, ClsStandsAlone) {
  surface.Cls();
  EXPECT_EQ(transcript.str(), Event(R"("Cls")"));
}

TEST_F(SurfaceTraceTest, FloodFillHasPixelsAndTheColourRead) {
  surface.ExtFloodFill(512, -3, -1);
  EXPECT_EQ(transcript.str(), Event(R"("FloodFill","x":512,"y":-3,"color":-1)"));
}

TEST_F(SurfaceTraceTest, PictureHasThePathThatTheSystemGaveIt) {
  const TempFolder folder;
  folder.Write("sea.jpg", "");
  EXPECT_ANY_THROW(surface.SetPicture(folder.Path / "none.jpg", "C:\\X\\NONE.JPG"));
  surface.SetPicture(folder.Path / "sea.jpg", "C:\\X\\SEA.JPG");
  EXPECT_EQ(transcript.str(), Event(R"("Picture","path":"C:\\X\\SEA.JPG")"));
}

TEST_F(SurfaceTraceTest, WriteOfTheSameValueIsASetToo) {
  surface.SetDrawWidth(4);
  surface.SetDrawWidth(4);
  const std::string write = Event(R"("Set","property":"DrawWidth","value":4)");
  EXPECT_EQ(transcript.str(), write + write);
}

TEST_F(SurfaceTraceTest, EveryPropertyWriteThatTookPlaceIsASet) {
  surface.SetBackColor(255);
  surface.SetForeColor(1);
  surface.SetFillColor(2);
  surface.SetFillStyle(FillPattern::Vertical);
  surface.SetDrawMode(DrawingMode::ExclusiveOr);
  surface.SetDrawWidth(4);
  surface.SetScaleMode(Scale::Pixels);
  surface.SetCurrentX(0.1);
  surface.SetCurrentY(2);
  surface.SetFontSize(8.25);
  surface.SetHeight(9585);
  EXPECT_EQ(
      transcript.str(),
      Event(R"("Set","property":"BackColor","value":255)") + Event(R"("Set","property":"ForeColor","value":1)") +
          Event(R"("Set","property":"FillColor","value":2)") + Event(R"("Set","property":"FillStyle","value":3)") +
          Event(R"("Set","property":"DrawMode","value":7)") + Event(R"("Set","property":"DrawWidth","value":4)") +
          Event(R"("Set","property":"ScaleMode","value":3)") + Event(R"("Set","property":"CurrentX","value":0.1)") +
          Event(R"("Set","property":"CurrentY","value":2)") + Event(R"("Set","property":"Font.Size","value":8.25)") +
          Event(R"("Set","property":"Height","value":9585)"));
}

TEST_F(SurfaceTraceTest, RefusedWriteIsNone) {
  EXPECT_ANY_THROW(surface.SetDrawMode(DrawingMode{17}));
  EXPECT_EQ(transcript.str(), "");
}

TEST_F(SurfaceTraceTest, NothingIsWrittenOnceItNoLongerListens) {
  surface.RemoveRecorder(trace);
  surface.Cls();
  EXPECT_EQ(transcript.str(), "");
}

}  // namespace
}  // namespace zerimo::batch
