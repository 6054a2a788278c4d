#include <gtest/gtest.h>

#include "graphics/surface.h"
#include "pixels/canvas_fixture.h"

namespace zerimo {

namespace {

/// The surface with real pixels: 96 by 96 of them.
class Readings : public CanvasTest {
 protected:
  Readings() {
    surface.Width = 96 * UnitsPerPixel;
    surface.SetHeight(96 * UnitsPerPixel);
    surface.CreateCanvas(surface.Width, surface.Height());
    surface.SetBackColor(Ground);
  }

  Surface surface{"Picture1", canvas};
};

TEST_F(Readings, APointIsReadBackWhereItWasSet) {
  for (double place = 0.25; place < 95 * UnitsPerPixel; place += 3.5) {
    surface.PSet(place, 1424 - place, Red);
    ASSERT_EQ(surface.Point(place, 1424 - place), Red) << place;
    surface.PSet(place, 1424 - place, Ground);
  }
}

TEST_F(Readings, TheEndOfALineIsReadBack) {
  surface.SetForeColor(Green);
  for (double place = 0.5; place < 95 * UnitsPerPixel; place += 7.5) {
    surface.Line(720, 720, place, 300);
    ASSERT_EQ(surface.Point(place, 300), Green) << place;
  }
}

TEST_F(Readings, AFloodStartsAtThePixelOfTheUnits) {
  // 712.5 units are 47.5 pixels, which gives pixel 48.
  surface.PSet(712.5, 300, Red);
  surface.SetFillColor(Blue);
  surface.ExtFloodFill(48, 20, Red);
  EXPECT_EQ(surface.Point(712.5, 300), Blue);
  EXPECT_EQ(Count(Blue), 1);
}

TEST_F(Readings, AFloodEndsAtTheHeightOfTheSurface) {
  surface.SetHeight(50 * UnitsPerPixel);
  surface.SetFillColor(Blue);
  surface.ExtFloodFill(20, 20, Ground);
  EXPECT_EQ(Count(Blue), 96 * 50);
}

TEST_F(Readings, OutsideTheCanvasThereIsNoColour) {
  EXPECT_EQ(surface.Point(-15, 0), -1);
  EXPECT_EQ(surface.Point(0, 96 * UnitsPerPixel), -1);
}

TEST_F(Readings, ColoursOutsideThreeBytesAreCutToThem) {
  surface.PSet(300, 300, -1);
  EXPECT_EQ(surface.Point(300, 300), White);
  surface.PSet(300, 300, 0x1000000);
  EXPECT_EQ(surface.Point(300, 300), Black);
}

TEST_F(Readings, ATurnedRedIsRed) {
  surface.PSet(300, 300, 255);
  EXPECT_EQ(canvas.Pixels().Row(20)[20], 0xFFFF0000);
}

}  // namespace

}  // namespace zerimo
