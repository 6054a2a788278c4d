#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "pictures/image_canvas.h"
#include "pictures/text_painter.h"
#include "pixels/rgb.h"
#include "ratio_reporter.h"
#include "reference/pixels/image_canvas.h"

namespace zerimo {

namespace {

constexpr int Columns = 1920;
constexpr int Rows = 1080;
constexpr Colour Back = 0x800080;
constexpr Colour Pen = 0xFFFFFF;
constexpr Colour Inside = 0x00C0FF;
constexpr double PointSize = 12;
constexpr const char* Text = "Hello, turtle 123";

struct Ends {
  PixelPoint From;
  PixelPoint To;
};

/// Lines of one length from the middle in all directions.
std::vector<Ends> Star(double length) {
  constexpr int Directions = 64;
  const PixelPoint middle{Columns / 2.0, Rows / 2.0};
  std::vector<Ends> lines;
  for (int n = 0; n < Directions; ++n) {
    const double angle = 2 * std::numbers::pi * (n + 0.3) / Directions;
    lines.push_back({middle,
                     {std::nearbyint(middle.X + (length - 1) * std::cos(angle)),
                      std::nearbyint(middle.Y + (length - 1) * std::sin(angle))}});
  }
  return lines;
}

QImage MakeImage() {
  QImage image = MakeTextImage(Columns, Rows, QImage::Format_RGB32);
  image.fill(ToRgb(Back));
  return image;
}

QPen PlainPen(int width) {
  return {QColor::fromRgb(ToRgb(Pen)), static_cast<qreal>(width), Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin};
}

QPoint Whole(PixelPoint point) { return {static_cast<int>(point.X), static_cast<int>(point.Y)}; }

template <typename SomeCanvas>
void CanvasLines(benchmark::State& state, double length, int width) {
  SomeCanvas canvas;
  canvas.Create(Columns, Rows, Back);
  const std::vector<Ends> lines = Star(length);
  std::size_t next = 0;
  for (auto _ : state) {
    const Ends& line = lines[next++ % lines.size()];
    canvas.Line({Pen, width, DrawingMode::CopyPen}, line.From, line.To);
  }
}

void PlainLines(benchmark::State& state, double length, int width) {
  QImage image = MakeImage();
  std::vector<QLine> lines;
  for (const Ends& line : Star(length)) lines.emplace_back(Whole(line.From), Whole(line.To));
  QPainter painter(&image);
  painter.setPen(PlainPen(width));
  std::size_t next = 0;
  for (auto _ : state) painter.drawLine(lines[next++ % lines.size()]);
}

/// A box or circle around the middle, filled or not.
struct ClosedShape {
  bool IsBox;
  int Half;
  int Width;
  bool IsFilled;
};

void OurShape(benchmark::State& state, const ClosedShape& shape) {
  ImageCanvas canvas;
  canvas.Create(Columns, Rows, Back);
  const Stroke stroke{Pen, shape.Width, DrawingMode::CopyPen};
  const Filling filling{Inside, shape.IsFilled ? FillPattern::Solid : FillPattern::Transparent};
  const PixelPoint middle{Columns / 2.0, Rows / 2.0};
  const double half = shape.Half;
  for (auto _ : state) {
    if (shape.IsBox) {
      canvas.Box(stroke, filling, {middle.X - half, middle.Y - half}, {middle.X + half, middle.Y + half});
    } else {
      canvas.Ellipse(stroke, filling, middle, half, half);
    }
  }
}

void PlainShape(benchmark::State& state, const ClosedShape& shape) {
  QImage image = MakeImage();
  QPainter painter(&image);
  painter.setPen(PlainPen(shape.Width));
  painter.setBrush(shape.IsFilled ? QBrush(QColor::fromRgb(ToRgb(Inside))) : QBrush());
  const QPoint middle(Columns / 2, Rows / 2);
  const QRect bounds(middle - QPoint(shape.Half, shape.Half), middle + QPoint(shape.Half, shape.Half));
  for (auto _ : state) {
    if (shape.IsBox) {
      painter.drawRect(bounds);
    } else {
      painter.drawEllipse(bounds);
    }
  }
}

/// Each flood covers the one before it.
Colour FloodColour(int round) { return round % 2 == 0 ? Pen : Inside; }

void OurFlood(benchmark::State& state) {
  ImageCanvas canvas;
  canvas.Create(Columns, Rows, Back);
  int round = 0;
  for (auto _ : state) canvas.FloodFill({Columns / 2.0, Rows / 2.0}, FloodColour(round++), Rows);
}

/// QPainter has no flood. Painting the same pixels without reading them is the least that one would cost; a flood reads
/// each pixel before it writes it.
void PlainFlood(benchmark::State& state) {
  QImage image = MakeImage();
  QPainter painter(&image);
  int round = 0;
  for (auto _ : state) painter.fillRect(image.rect(), QColor::fromRgb(ToRgb(FloodColour(round++))));
}

void OurText(benchmark::State& state) {
  ImageCanvas canvas;
  canvas.Create(Columns, Rows, Back);
  for (auto _ : state) canvas.Print(Text, {Columns / 2.0, Rows / 2.0}, PointSize, Pen);
}

void PlainText(benchmark::State& state) {
  QImage image = MakeImage();
  QPainter painter(&image);
  painter.setRenderHint(QPainter::TextAntialiasing, false);
  painter.setFont(TextFont(PointSize).Font());
  painter.setPen(PlainPen(1));
  const QString text = QString::fromLatin1(Text);
  for (auto _ : state) painter.drawText(QPoint(Columns / 2, Rows / 2), text);
}

template <typename Ours, typename Plain, typename... Inputs>
void RegisterPair(const std::string& name, Ours ours, Plain plain, Inputs... inputs) {
  benchmark::RegisterBenchmark(("ours/" + name).c_str(), ours, inputs...);
  benchmark::RegisterBenchmark(("plain/" + name).c_str(), plain, inputs...);
}

void RegisterAll() {
  for (const int width : {1, 4}) {
    for (const int length : {3, 33, 333}) {
      const std::string name = "line of " + std::to_string(length) + ", width " + std::to_string(width);
      RegisterPair(name, CanvasLines<ImageCanvas>, PlainLines, static_cast<double>(length), width);
      RegisterPair(name + ", to former", CanvasLines<ImageCanvas>, CanvasLines<reference::ImageCanvas>,
                   static_cast<double>(length), width);
    }
  }
  for (const bool isBox : {false, true}) {
    for (const int half : {5, 50, 250}) {
      for (const int width : {1, 4}) {
        for (const bool isFilled : {false, true}) {
          const std::string name = std::string(isBox ? "box of " : "circle of ") + std::to_string(2 * half + 1) +
                                   ", width " + std::to_string(width) + (isFilled ? ", filled" : "");
          RegisterPair(name, OurShape, PlainShape, ClosedShape{isBox, half, width, isFilled});
        }
      }
    }
  }
  RegisterPair("flood of the whole surface", OurFlood, PlainFlood);
  RegisterPair("text", OurText, PlainText);
}

}  // namespace

}  // namespace zerimo

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  zerimo::RegisterAll();
  zerimo::RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}
