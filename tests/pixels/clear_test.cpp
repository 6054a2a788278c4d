#include <gtest/gtest.h>

#include <random>

#include "pixels/canvas_fixture.h"

namespace zerimo {

namespace {

class Clear : public CanvasTest {
 protected:
  bool IsAll(Colour colour) const { return Count(colour) == 96 * 96; }

  /// One operation at random places, on the canvas or beyond.
  void Draw(std::mt19937& random) {
    std::uniform_int_distribution<int> anywhere(-60, 160);
    const auto place = [&] { return PixelPoint{1.0 * anywhere(random), 1.0 * anywhere(random)}; };
    const Stroke pen = Pen(White, 1 + anywhere(random) % 12 + 12, anywhere(random) % 2 == 0 ? CopyPen : Invert);
    switch (random() % 5) {
      case 0:
        return canvas.Line(pen, place(), place());
      case 1:
        return canvas.Box(pen, {Black, Solid}, place(), place());
      case 2:
        return canvas.Ellipse(pen, {Black, Solid}, place(), 30, 20);
      case 3:
        return canvas.Point(pen, place());
      default:
        return canvas.FloodFill(place(), White, Rows);
    }
  }
};

TEST_F(Clear, LeavesNothingOfWhatWasDrawn) {
  std::mt19937 random(3);
  for (int round = 0; round < 500; ++round) {
    for (int drawn = round % 4; drawn > 0; --drawn) Draw(random);
    const Colour colour = round % 3 == 0 ? Black : Ground;
    canvas.Clear(colour);
    ASSERT_TRUE(IsAll(colour)) << round;
  }
}

TEST_F(Clear, LeavesNothingOfPixelsThatWereTakenOver) {
  canvas.PutPixels(PixelBuffer(96, 96, ToRgb(White)));
  canvas.Clear(Ground);
  EXPECT_TRUE(IsAll(Ground));
}

TEST_F(Clear, ChangesTheWholeCanvas) {
  canvas.TakeDirty();
  canvas.Clear(Ground);
  EXPECT_EQ(canvas.TakeDirty(), Sized(0, 0, 96, 96));
}

}  // namespace

}  // namespace zerimo
