#include "pictures/golden.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>
#include <ostream>
#include <string>
#include <vector>

#include "pictures/picture_fixture.h"
#include "pictures/picture_likeness.h"
#include "pixels/rgb.h"

namespace zerimo {

namespace {

constexpr PixelPoint Middle{47, 47};

struct Scene {
  std::string Name;
  std::function<void(Canvas&)> Draw;
};

void PrintTo(const Scene& scene, std::ostream* out) { *out << scene.Name; }

std::string NameOf(const ::testing::TestParamInfo<Scene>& scene) { return scene.param.Name; }

/// Something to show through the gaps of a hatch.
void Stripes(Canvas& canvas) {
  for (int x = 5; x < 96; x += 18) canvas.Line({0x808000, 7, CopyPen}, {1.0 * x, 0}, {1.0 * x, 95});
}

std::vector<Scene> FillStyles() {
  std::vector<Scene> scenes;
  for (int style = 0; style <= 7; ++style) {
    const Filling filling{Red, FillPattern{style}};
    scenes.push_back({"box_fill_style_" + std::to_string(style), [filling](Canvas& canvas) {
                        Stripes(canvas);
                        canvas.Box({Yellow, 2, CopyPen}, filling, {9, 14}, {87, 80});
                      }});
    scenes.push_back({"ellipse_fill_style_" + std::to_string(style), [filling](Canvas& canvas) {
                        Stripes(canvas);
                        canvas.Ellipse({Yellow, 2, CopyPen}, filling, Middle, 43, 35);
                      }});
  }
  return scenes;
}

std::vector<Scene> RasterOperations() {
  std::vector<Scene> scenes;
  for (int number = 1; number <= 16; ++number) {
    const DrawingMode mode{number};
    scenes.push_back({"raster_operation_" + std::to_string(number), [mode](Canvas& canvas) {
                        Stripes(canvas);
                        canvas.Box({0x20C0F0, 3, mode}, {0xF06020, Solid}, {4, 4}, {60, 40});
                        canvas.Ellipse({0x20C0F0, 2, mode}, {0xF06020, Cross}, {60, 58}, 30, 22);
                        canvas.Line({0x20C0F0, 1, mode}, {0, 95}, {95, 0});
                        canvas.Line({0x20C0F0, 6, mode}, {8, 50}, {40, 90});
                        canvas.Point({0x20C0F0, 13, mode}, {80, 12});
                      }});
  }
  return scenes;
}

std::vector<Scene> Widths() {
  std::vector<Scene> scenes;
  for (const int width : {1, 2, 3, 4, 7, 12}) {
    scenes.push_back(
        {"lines_of_width_" + std::to_string(width), [width](Canvas& canvas) {
           for (int spoke = 0; spoke < 15; ++spoke) {
             const double angle = spoke * 2 * std::numbers::pi / 15;
             const PixelPoint rim{std::round(47 + 42 * std::sin(angle)), std::round(47 - 42 * std::cos(angle))};
             canvas.Line({White, width, CopyPen}, Middle, rim);
           }
         }});
  }
  for (const int width : {1, 3, 8, 30, 60}) {
    const Stroke pen{Yellow, width, CopyPen};
    scenes.push_back({"shapes_of_width_" + std::to_string(width), [pen](Canvas& canvas) {
                        canvas.Box(pen, {Blue, Solid}, {2, 2}, {60, 40});
                        canvas.Ellipse(pen, {Blue, Solid}, {57, 66}, 36, 27);
                      }});
  }
  scenes.push_back({"points_of_widths", [](Canvas& canvas) {
                      double x = 4;
                      for (const int width : {1, 2, 3, 4, 5, 6, 8, 11, 15}) {
                        canvas.Point({White, width, CopyPen}, {x, 40});
                        canvas.Point({Red, width, Invert}, {x, 60});
                        x += width + 4;
                      }
                    }});
  return scenes;
}

std::vector<Scene> Aspects() {
  std::vector<Scene> scenes;
  struct Named {
    const char* Name;
    double Aspect;
  };
  for (const Named& named : {Named{"1_20", 0.05}, {"1_4", 0.25}, {"1_2", 0.5}, {"1", 1}, {"2", 2}, {"20", 20}}) {
    const double width = named.Aspect > 1 ? 45 / named.Aspect : 45;
    const double height = named.Aspect > 1 ? 45 : 45 * named.Aspect;
    scenes.push_back({std::string("ellipse_of_aspect_") + named.Name, [width, height](Canvas& canvas) {
                        canvas.Ellipse({Yellow, 1, CopyPen}, {Red, Solid}, Middle, width, height);
                      }});
  }
  scenes.push_back({"small_ellipses", [](Canvas& canvas) {
                      for (int a = 0; a <= 6; ++a) {
                        for (int b = 0; b <= 6; ++b) {
                          canvas.Ellipse({Yellow, 1, CopyPen}, {Red, Solid}, {7 + 13.0 * a, 7 + 13.0 * b}, a, b);
                        }
                      }
                    }});
  return scenes;
}

/// Walls with a way through them, one pixel wide.
void Maze(Canvas& canvas) {
  for (int y = 1; y < 95; y += 2) {
    const bool isOpenLeft = y % 4 == 1;
    canvas.Line({White, 1, CopyPen}, {isOpenLeft ? 1.0 : 0, 1.0 * y}, {isOpenLeft ? 95.0 : 94, 1.0 * y});
  }
}

std::vector<Scene> Floods() {
  return {{"flood_of_a_ring",
           [](Canvas& canvas) {
             canvas.Ellipse({White, 1, CopyPen}, {0, Transparent}, Middle, 40, 30);
             canvas.Ellipse({White, 1, CopyPen}, {0, Transparent}, Middle, 20, 15);
             canvas.FloodFill({20, 47}, Green, Rows);
           }},
          {"flood_through_a_gap",
           [](Canvas& canvas) {
             canvas.Box({White, 1, CopyPen}, {0, Transparent}, {20, 20}, {70, 70});
             canvas.Point({Ground, 1, CopyPen}, {70, 33});
             canvas.FloodFill(Middle, Green, Rows);
           }},
          {"flood_of_a_maze",
           [](Canvas& canvas) {
             Maze(canvas);
             canvas.FloodFill({0, 0}, Green, Rows);
           }},
          {"flood_between_crossing_lines", [](Canvas& canvas) {
             canvas.Line({White, 1, CopyPen}, {0, 0}, {95, 95});
             canvas.Line({White, 1, CopyPen}, {0, 80}, {95, 10});
             canvas.FloodFill({90, 60}, Green, Rows);
             canvas.FloodFill({5, 40}, Red, Rows);
           }}};
}

class Golden : public ::testing::TestWithParam<Scene> {};

TEST_P(Golden, PixelForPixel) {
  ImageCanvas canvas;
  canvas.Create(96, 96, Ground);
  GetParam().Draw(canvas);
  EXPECT_TRUE(IsGolden(GetParam().Name, canvas.Image()));
}

INSTANTIATE_TEST_SUITE_P(FillStyles, Golden, ::testing::ValuesIn(FillStyles()), NameOf);
INSTANTIATE_TEST_SUITE_P(RasterOperations, Golden, ::testing::ValuesIn(RasterOperations()), NameOf);
INSTANTIATE_TEST_SUITE_P(Widths, Golden, ::testing::ValuesIn(Widths()), NameOf);
INSTANTIATE_TEST_SUITE_P(Aspects, Golden, ::testing::ValuesIn(Aspects()), NameOf);
INSTANTIATE_TEST_SUITE_P(Floods, Golden, ::testing::ValuesIn(Floods()), NameOf);

struct Writing {
  std::string Name;
  double PointSize;
  std::string Text;
};

void PrintTo(const Writing& writing, std::ostream* out) { *out << writing.Name; }

class GoldenText : public ::testing::TestWithParam<Writing> {};

TEST_P(GoldenText, WithinTheToleranceOfFonts) {
  ImageCanvas canvas;
  canvas.Create(192, 96, White);
  canvas.Print(GetParam().Text, {5, 10}, GetParam().PointSize, Black);
  const QImage expected = GoldenPicture(GetParam().Name, canvas.Image());
  EXPECT_LT(InkDifference(expected, canvas.Image(), ToRgb(White)), 0.3)
      << WriteDifference(GetParam().Name, expected, canvas.Image());
}

INSTANTIATE_TEST_SUITE_P(Sizes, GoldenText,
                         ::testing::Values(Writing{"text_of_8_points", 8, "Turtle FD 100, RT 90 [2+3]"},
                                           Writing{"text_of_12_points", 12, "Turtle \"FD 100\" & <BK>"},
                                           Writing{"text_of_20_5_points", 20.5, "Gr\xFC\xDF e \xC4pfel"},
                                           Writing{"text_of_60_points", 60, "Ag5"}),
                         [](const auto& writing) { return writing.param.Name; });

}  // namespace

}  // namespace zerimo
