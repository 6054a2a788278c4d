#include <gtest/gtest.h>

#include <string>

#include "graphics/surface.h"
#include "pictures/picture_fixture.h"
#include "pictures/text_painter.h"

namespace zerimo {

namespace {

class Texts : public PictureTest {
 protected:
  /// The width of a blank at 12 points, in pixels.
  static double BlankWidth() { return TextFont(12).WidthOf(' '); }
};

TEST_F(Texts, BeginAtTheirTopLeftCorner) {
  canvas.Print("HHH", {20, 30}, 12, White);
  const PixelRect drawn = Drawn();
  EXPECT_GE(drawn.Left, 20);
  EXPECT_LE(drawn.Left, 23);
  EXPECT_GE(drawn.Top, 30);
  EXPECT_LE(drawn.Top, 37);
}

TEST_F(Texts, AreNotSmoothed) {
  canvas.Print("Ag&S", {5, 5}, 24, White);
  EXPECT_GT(Count(White), 100);
  EXPECT_EQ(Count(White) + Count(Ground), 96 * 96);
}

TEST_F(Texts, LeaveTheBackgroundBetweenLetters) {
  canvas.Print("O", {20, 20}, 40, White);
  const PixelRect drawn = Drawn();
  EXPECT_EQ(At((drawn.Left + drawn.Right) / 2, (drawn.Top + drawn.Bottom) / 2), Ground);
}

TEST_F(Texts, OfTwelvePointsAreSixteenPixelsHigh) {
  // The height of this font's capitals is 0.716 of its size.
  canvas.Print("H", {20, 20}, 12, White);
  EXPECT_NEAR(Drawn().Rows(), 0.716 * 16, 1);
}

TEST_F(Texts, HaveFractionsOfAPoint) {
  canvas.Print("Hug", {2, 2}, 24, White);
  const QImage whole = canvas.Image().copy();
  canvas.Clear(Ground);
  canvas.Print("Hug", {2, 2}, 24.5, White);
  EXPECT_NE(canvas.Image(), whole);
}

TEST_F(Texts, KeepTheirBlanks) {
  canvas.Print("AB", {2, 2}, 12, White);
  const int together = Drawn().Columns();
  canvas.Clear(Ground);
  canvas.Print("A  B", {2, 2}, 12, White);
  EXPECT_GE(Drawn().Columns(), together + 6);
}

TEST_F(Texts, HaveNoLigatures) {
  canvas.Print("fi", {2, 2}, 30, White);
  const QImage together = canvas.Image().copy();
  canvas.Clear(Ground);
  const double width = TextFont(30).WidthOf('f');
  canvas.Print("f", {2, 2}, 30, White);
  canvas.Print("i", {2 + width, 2}, 30, White);
  EXPECT_EQ(canvas.Image(), together);
}

TEST_F(Texts, AreCutAtTheEdge) {
  canvas.Print("WWWWWWWWWWWWWWWWWWWWWWWW", {60, 30}, 12, White);
  EXPECT_EQ(Drawn().Right, 95);
  EXPECT_LT(Drawn().Rows(), 20);
}

TEST_F(Texts, ThatBeginOutsideShowTheirOtherPart) {
  canvas.Print("WWWWWWWWWWWWWWWWWWWWWWWW", {-100, 30}, 12, White);
  EXPECT_EQ(Drawn().Left, 0);
}

TEST_F(Texts, ThatBeginFarOutsideLandOnTheSamePixels) {
  canvas.Print("abcdefghijklmnopqrstuvwxyz", {-40, 30}, 12, White);
  const QImage all = canvas.Image().copy();
  canvas.Clear(Ground);
  canvas.Print(std::string(1000, ' ') + "abcdefghijklmnopqrstuvwxyz", {-40 - 1000.0 * BlankWidth(), 30}, 12, White);
  EXPECT_EQ(canvas.Image(), all);
}

TEST_F(Texts, FarOffLeaveTheCanvas) {
  for (const double far : {40000.0, 3e9, 1e19, 2.2e37}) {
    canvas.Print("Text", {far, 10}, 12, White);
    canvas.Print("Text", {10, far}, 12, White);
    canvas.Print("Text", {-far, -far}, 12, White);
    EXPECT_EQ(Count(Ground), 96 * 96) << far;
  }
}

TEST_F(Texts, LieInTheAreaThatTheyChange) {
  canvas.TakeDirty();
  canvas.Print("jgf/WA", {-6, 20}, 30, White);
  EXPECT_FALSE(Drawn().IsEmpty());
  EXPECT_TRUE(Holds(canvas.LastChange(), Drawn()));
  EXPECT_TRUE(Holds(canvas.TakeDirty(), Drawn()));
}

TEST_F(Texts, OutsideTheCanvasChangeNothing) {
  canvas.TakeDirty();
  canvas.Print("Text", {300, 10}, 12, White);
  EXPECT_TRUE(canvas.TakeDirty().IsEmpty());
}

TEST_F(Texts, StayUntilTheSurfaceIsCleared) {
  Surface surface{"Picture1", canvas};
  surface.Width = 96 * UnitsPerPixel;
  surface.SetHeight(96 * UnitsPerPixel);
  surface.CreateCanvas(surface.Width, surface.Height());
  surface.SetBackColor(Ground);
  surface.SetCurrentX(300);
  surface.SetCurrentY(300);
  surface.SetForeColor(Red);
  surface.Print("HELLO");
  const int letters = Count(Red);
  EXPECT_GT(letters, 0);
  surface.SetForeColor(Green);
  surface.Line(0, 1200, 1200, 1200);
  EXPECT_EQ(Count(Red), letters);
  surface.Cls();
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_F(Texts, HaveLettersBeyondAscii) {
  canvas.Print("\xC4\xE9\xDF", {10, 10}, 20, White);
  const int ink = Count(White);
  canvas.Clear(Ground);
  canvas.Print("A", {10, 10}, 20, White);
  EXPECT_GT(ink, 2 * Count(White));
}

TEST_F(Texts, ControlCharactersPrintNothing) {
  std::string text;
  for (int code = 0; code < 32; ++code) text += static_cast<char>(code);
  for (int code = 127; code < 160; ++code) text += static_cast<char>(code);
  canvas.Print(text, {10, 10}, 12, White);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_F(Texts, ControlCharactersTakeNoRoom) {
  canvas.Print("AB", {10, 10}, 12, White);
  const QImage expected = canvas.Image().copy();
  canvas.Clear(Ground);
  canvas.Print(
      "A\r\n\t\x7F\x85"
      "B",
      {10, 10}, 12, White);
  EXPECT_EQ(canvas.Image(), expected);
}

TEST_F(Texts, OfNothingPrintNothing) {
  canvas.Print("", {10, 10}, 12, White);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_F(Texts, OfAnySizeAreCut) {
  for (const double points : {0.1, 0.5, 1.0, 300.0, 2160.0}) {
    canvas.Print(std::string(40, 'M'), {-500, -1000}, points, White);
    canvas.Print(std::string(40000, 'M'), {-1e6, 10}, points, White);
    EXPECT_EQ(Count(White) + Count(Ground), 96 * 96) << points;
  }
}

TEST_F(Texts, InTheLargestSizeFillWhatTheyCover) {
  // The stem of an I that is two thousand pixels high.
  canvas.Print("I", {-350, -1500}, 2160, White);
  EXPECT_EQ(Count(White), 96 * 96);
}

TEST_F(Texts, DoNotDependOnWhatWasPrintedBefore) {
  canvas.Print("Text", {10, 10}, 12, White);
  const QImage first = canvas.Image().copy();
  canvas.Clear(Ground);
  canvas.Print("Text", {10, 200}, 33, White);
  canvas.Print("Text", {10, 10}, 12, White);
  EXPECT_EQ(canvas.Image(), first);
}

}  // namespace

}  // namespace zerimo
