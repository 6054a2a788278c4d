#include <gtest/gtest.h>

#include <functional>

#include "pixels/canvas_fixture.h"

namespace zerimo {

namespace {

constexpr Colour PenColour = 0x3C0FF0;
constexpr Colour Below = 0x55AA33;

struct Operation {
  DrawingMode DrawMode;
  const char* Name;
  std::function<int(int pen, int below)> Result;
};

void PrintTo(const Operation& operation, std::ostream* out) { *out << operation.Name; }

class RasterOperations : public ::testing::TestWithParam<Operation> {
 protected:
  RasterOperations() { canvas.Create(40, 40, Below); }

  Colour Expected(Colour pen) const { return GetParam().Result(pen, Below) & 0xFFFFFF; }
  Stroke Pen(int width) const { return {PenColour, width, GetParam().DrawMode}; }
  Colour At(int x, int y) const { return *canvas.ColourAt({1.0 * x, 1.0 * y}); }

  BareCanvas canvas;
};

TEST_P(RasterOperations, OfLinesAndPoints) {
  canvas.Line(Pen(1), {5, 5}, {30, 15});
  canvas.Line(Pen(6), {5, 20}, {30, 24});
  canvas.Point(Pen(5), {35, 35});
  EXPECT_EQ(At(5, 5), Expected(PenColour));
  EXPECT_EQ(At(30, 24), Expected(PenColour));
  EXPECT_EQ(At(33, 35), Expected(PenColour));
  EXPECT_EQ(At(15, 35), Below);
}

TEST_P(RasterOperations, OfOutlinesAndInsides) {
  canvas.Box(Pen(2), {0xC08040, Solid}, {5, 5}, {34, 34});
  EXPECT_EQ(At(6, 20), Expected(PenColour));
  EXPECT_EQ(At(20, 20), Expected(0xC08040));
  EXPECT_EQ(At(3, 20), Below);
}

TEST_P(RasterOperations, OfHatches) {
  canvas.Ellipse(Pen(2), {0xC08040, Horizontal}, {20, 20}, 15, 15);
  EXPECT_EQ(At(20, 20), Expected(0xC08040));
  EXPECT_EQ(At(20, 21), Below);
  EXPECT_EQ(At(35, 20), Expected(PenColour));
}

TEST_P(RasterOperations, KeepPixelsOpaque) {
  canvas.Box(Pen(2), {0xC08040, Cross}, {5, 5}, {34, 34});
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) ASSERT_EQ(canvas.Pixels().Row(y)[x] >> 24, 0xFFU);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Sixteen, RasterOperations,
    ::testing::Values(Operation{DrawingMode{1}, "Black", [](int, int) { return 0; }},
                      Operation{DrawingMode{2}, "NotMergePen", [](int pen, int below) { return ~(pen | below); }},
                      Operation{DrawingMode{3}, "MaskNotPen", [](int pen, int below) { return ~pen & below; }},
                      Operation{DrawingMode{4}, "NotCopyPen", [](int pen, int) { return ~pen; }},
                      Operation{DrawingMode{5}, "MaskPenNot", [](int pen, int below) { return pen & ~below; }},
                      Operation{DrawingMode{6}, "Invert", [](int, int below) { return ~below; }},
                      Operation{DrawingMode{7}, "Xor", [](int pen, int below) { return pen ^ below; }},
                      Operation{DrawingMode{8}, "NotMaskPen", [](int pen, int below) { return ~(pen & below); }},
                      Operation{DrawingMode{9}, "MaskPen", [](int pen, int below) { return pen & below; }},
                      Operation{DrawingMode{10}, "NotXor", [](int pen, int below) { return ~(pen ^ below); }},
                      Operation{DrawingMode{11}, "Nop", [](int, int below) { return below; }},
                      Operation{DrawingMode{12}, "MergeNotPen", [](int pen, int below) { return ~pen | below; }},
                      Operation{DrawingMode{13}, "CopyPen", [](int pen, int) { return pen; }},
                      Operation{DrawingMode{14}, "MergePenNot", [](int pen, int below) { return pen | ~below; }},
                      Operation{DrawingMode{15}, "MergePen", [](int pen, int below) { return pen | below; }},
                      Operation{DrawingMode{16}, "White", [](int, int) { return 0xFFFFFF; }}),
    [](const auto& operation) { return operation.param.Name; });

}  // namespace

}  // namespace zerimo
