#include "pictures/svg_picture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "pictures/golden.h"
#include "pictures/picture_fixture.h"
#include "pictures/picture_likeness.h"
#include "support/failure_of.h"

namespace zerimo {

namespace {

constexpr int Width = 240;
constexpr int Height = 180;
constexpr int Enlargement = 9;

/// A surface with pixels and a recorder, coordinates in pixels.
class SvgPictures : public ::testing::Test {
 protected:
  SvgPictures() {
    surface.Width = Width * UnitsPerPixel;
    surface.SetHeight(Height * UnitsPerPixel);
    surface.CreateCanvas(surface.Width, surface.Height());
    surface.AddRecorder(recorder);
    surface.SetScaleMode(Scale::Pixels);
    surface.SetBackColor(Ground);
    surface.SetFillColor(Red);
  }

  QByteArray Document() const { return recorder.Picture(Width, Height, surface.BackColor()); }

  /// What a viewer without smoothing shows: the colour in the middle of each pixel.
  QImage Rendered() const {
    QImage enlarged(Width * Enlargement, Height * Enlargement, QImage::Format_RGB32);
    enlarged.fill(Qt::magenta);
    QSvgRenderer renderer(Document());
    EXPECT_TRUE(renderer.isValid());
    QPainter painter(&enlarged);
    renderer.render(&painter);
    painter.end();
    QImage image(Width, Height, QImage::Format_RGB32);
    for (int y = 0; y < Height; ++y) {
      for (int x = 0; x < Width; ++x) {
        image.setPixel(x, y, enlarged.pixel(x * Enlargement + Enlargement / 2, y * Enlargement + Enlargement / 2));
      }
    }
    return image;
  }

  void ExpectTheSamePicture(const std::string& name, double tolerance = 0.005) {
    const QImage rendered = Rendered();
    EXPECT_LE(Unlikeness(canvas.Image(), rendered), tolerance) << WriteDifference(name, canvas.Image(), rendered);
  }

  std::size_t CountOf(const char* element) const {
    return static_cast<std::size_t>(Document().count(QByteArray("<") + element + " "));
  }

  ImageCanvas canvas;
  Surface surface{"Picture1", canvas};
  SvgRecorder recorder{canvas};
};

struct Drawing {
  std::string Name;
  std::function<void(Surface&)> Draw;
};

void PrintTo(const Drawing& drawing, std::ostream* out) { *out << drawing.Name; }

class SvgOf : public SvgPictures, public ::testing::WithParamInterface<Drawing> {};

TEST_P(SvgOf, ShowsTheSameAsThePixels) {
  GetParam().Draw(surface);
  ExpectTheSamePicture("svg_of_" + GetParam().Name);
}

void DrawStar(Surface& surface) {
  for (int spoke = 0; spoke < 12; ++spoke) {
    surface.SetDrawWidth(1 + spoke / 3);
    surface.Line(120, 90, 20 + 18.0 * spoke, spoke % 2 == 0 ? 10 : 170);
  }
}

void DrawHatches(Surface& surface) {
  for (int style = 0; style <= 7; ++style) {
    surface.SetFillStyle(FillPattern{style});
    surface.Box(5 + 29.0 * style, 5, 30 + 29.0 * style, 60);
    surface.Circle(17 + 29.0 * style, 90, 13);
    surface.Circle(17 + 29.0 * style, 145, 30, 2.3);
  }
}

void DrawScene(Surface& surface) {
  surface.SetDrawWidth(3);
  surface.Circle(120, 90, 60, 0.5);
  surface.SetFillColor(Green);
  surface.ExtFloodFill(3, 3, surface.Point(3, 3));
  surface.SetDrawMode(DrawingMode::ExclusiveOr);
  surface.SetForeColor(0x40F0A0);
  surface.Line(0, 0, 239, 179);
  surface.SetDrawMode(DrawingMode::CopyPen);
  surface.LineTo(120, 20);
  surface.SetDrawMode(DrawingMode::Invert);
  surface.Box(100, 60, 200, 120);
}

INSTANTIATE_TEST_SUITE_P(Each, SvgOf,
                         ::testing::Values(Drawing{"lines", DrawStar}, Drawing{"hatches", DrawHatches},
                                           Drawing{"scene", DrawScene},
                                           Drawing{"chain",
                                                   [](Surface& surface) {
                                                     surface.SetCurrentX(10);
                                                     surface.SetCurrentY(10);
                                                     for (int step = 1; step < 20; ++step)
                                                       surface.LineTo(10 + 11.0 * step, step % 2 == 0 ? 10 : 160);
                                                   }},
                                           Drawing{"points",
                                                   [](Surface& surface) {
                                                     for (int width = 1; width < 14; ++width) {
                                                       surface.SetDrawWidth(width);
                                                       surface.PSet(17 * width, 90, 0xFFFF00);
                                                     }
                                                   }},
                                           Drawing{"wide_outlines",
                                                   [](Surface& surface) {
                                                     surface.SetDrawWidth(17);
                                                     surface.Box(10, 10, 100, 80);
                                                     surface.Circle(170, 60, 50);
                                                     surface.Box(10, 100, 40, 120);
                                                     surface.Circle(100, 140, 12);
                                                   }},
                                           Drawing{"constant_operations",
                                                   [](Surface& surface) {
                                                     int left = 5;
                                                     for (const int mode : {1, 4, 11, 13, 16}) {
                                                       surface.SetDrawMode(DrawingMode{mode});
                                                       surface.SetForeColor(0x2080F0);
                                                       surface.Box(left, 20, left + 40, 100);
                                                       surface.Line(left, 130, left + 40, 150);
                                                       left += 45;
                                                     }
                                                   }},
                                           Drawing{"far_places",
                                                   [](Surface& surface) {
                                                     surface.SetFillStyle(FillPattern::Transparent);
                                                     surface.Line(120, 90, 1e30, 2e30);
                                                     surface.Box(-1e20, 50, 1e20, 1e20);
                                                     surface.Circle(120, 90, 1e9, 1e-8);
                                                     surface.Circle(120, 1e6, 1e6);
                                                   }}),
                         [](const auto& drawing) { return drawing.param.Name; });

TEST_F(SvgPictures, TextStandsInTheSamePlace) {
  surface.SetFontSize(20);
  surface.SetCurrentX(20);
  surface.SetCurrentY(30);
  surface.Print("Zerimo & <Co>");
  EXPECT_EQ(CountOf("text"), 1U);
  EXPECT_TRUE(Document().contains(" font-size=\"26.667\""));
  ExpectTheSamePicture("svg_of_text", 0.02);
}

TEST_F(SvgPictures, TextKeepsItsCharacters) {
  surface.Print("  A<B> & \"\xC4\"\x01\x1F  ");
  EXPECT_TRUE(Document().contains("xml:space=\"preserve\""));
  EXPECT_TRUE(Document().contains(">  A&lt;B&gt; &amp; &quot;\xC3\x84&quot;  </text>"));
}

TEST_F(SvgPictures, ShapesAreSaidAsShapes) {
  surface.Line(10, 10, 50, 50);
  surface.Box(60, 10, 90, 50);
  surface.Circle(120, 40, 20);
  EXPECT_EQ(CountOf("path"), 1U);
  EXPECT_EQ(CountOf("rect"), 2U) << "the background and the box";
  EXPECT_EQ(CountOf("ellipse"), 1U);
  EXPECT_EQ(CountOf("image"), 0U);
}

TEST_F(SvgPictures, LinesThatFollowEachOtherAreOnePath) {
  for (int step = 0; step < 100; ++step) surface.Line(step, 10, step + 1, 20);
  surface.SetForeColor(Green);
  surface.Line(10, 10, 50, 50);
  EXPECT_EQ(CountOf("path"), 2U);
}

TEST_F(SvgPictures, FloodsAreKeptAsPixels) {
  surface.SetFillStyle(FillPattern::Transparent);
  surface.Box(60, 10, 90, 50);
  surface.SetFillColor(Green);
  surface.ExtFloodFill(70, 20, Ground);
  EXPECT_EQ(CountOf("image"), 1U);
  EXPECT_TRUE(Document().contains("<image x=\"61\" y=\"11\" width=\"29\" height=\"39\""));
}

TEST_F(SvgPictures, MorePatchesThanFourCanvasesAreOne) {
  surface.CreateCanvas(17 * UnitsPerPixel, 50 * UnitsPerPixel);
  surface.SetHeight(50 * UnitsPerPixel);
  const auto flood = [this](Colour color) {
    surface.SetFillColor(color);
    surface.ExtFloodFill(3, 3, surface.Point(3, 3));
  };
  for (const Colour color : {Red, Green, Blue, Red}) flood(color);
  EXPECT_EQ(CountOf("image"), 4U);
  flood(Green);
  EXPECT_EQ(CountOf("image"), 1U);
}

struct Restart {
  std::string Name;
  std::function<void(Surface&)> Clear;
};

void PrintTo(const Restart& restart, std::ostream* out) { *out << restart.Name; }

class SvgRestarts : public SvgPictures, public ::testing::WithParamInterface<Restart> {};

TEST_P(SvgRestarts, ForgetWhatWasDrawn) {
  surface.Circle(120, 40, 20);
  surface.ExtFloodFill(3, 3, Ground);
  GetParam().Clear(surface);
  EXPECT_TRUE(recorder.Shapes().empty());
  ExpectTheSamePicture("svg_after_" + GetParam().Name);
}

INSTANTIATE_TEST_SUITE_P(Each, SvgRestarts,
                         ::testing::Values(Restart{"Cls", [](Surface& surface) { surface.Cls(); }},
                                           Restart{"BackColor", [](Surface& surface) { surface.SetBackColor(Blue); }}),
                         [](const auto& restart) { return restart.param.Name; });

TEST_F(SvgPictures, OtherPropertiesKeepWhatWasDrawn) {
  surface.Circle(120, 40, 20);
  surface.SetForeColor(Green);
  surface.SetHeight(50);
  surface.SetFillStyle(FillPattern::Vertical);
  EXPECT_EQ(recorder.Shapes().size(), 1U);
}

TEST_F(SvgPictures, ALoadedPictureTakesThePlaceOfAll) {
  const QTemporaryDir folder;
  QImage picture(50, 40, QImage::Format_RGB32);
  picture.fill(Qt::yellow);
  const std::string file = folder.filePath("a.bmp").toStdString();
  ASSERT_TRUE(picture.save(QString::fromStdString(file)));
  surface.Circle(120, 40, 20);
  surface.SetPicture(file, "a.bmp");
  surface.Line(10, 10, 100, 100);
  EXPECT_EQ(recorder.Shapes().size(), 2U);
  ExpectTheSamePicture("svg_of_picture");
}

TEST_F(SvgPictures, TooManyShapesBecomePixels) {
  for (std::size_t count = 0; count <= SvgRecorder::MostShapes + 5; ++count) {
    surface.Line(10, 10, static_cast<double>(count % 200), 100);
  }
  EXPECT_LT(recorder.Shapes().size(), 10U);
  ExpectTheSamePicture("svg_of_many_shapes");
}

TEST_F(SvgPictures, TooManyPatchesBecomeOne) {
  surface.SetDrawMode(DrawingMode::ExclusiveOr);
  for (int count = 0; count < 1000; ++count) surface.Line(10, 10, count % 200, 100);
  EXPECT_LT(recorder.Shapes().size(), 500U);
  ExpectTheSamePicture("svg_of_many_patches");
}

TEST_F(SvgPictures, AreAsLargeAsAskedFor) {
  const QSvgRenderer renderer(recorder.Picture(100, 60, Blue));
  EXPECT_EQ(renderer.defaultSize(), QSize(100, 60));
}

TEST_F(SvgPictures, AreWrittenByTheEnding) {
  const QTemporaryDir folder;
  surface.Circle(120, 40, 20);
  for (const char* name : {"a.svg", "a.SVG"}) {
    const QString file = folder.filePath(name);
    WriteSurface(canvas, recorder, file.toStdString(), Width, Height, Ground);
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), Document());
  }
  const QString pixels = folder.filePath("a.png");
  WriteSurface(canvas, recorder, pixels.toStdString(), Width, Height, Ground);
  EXPECT_EQ(QImage(pixels), canvas.Image());
}

TEST_F(SvgPictures, AnotherEndingIsRefused) {
  EXPECT_EQ(FailureOf([&] { WriteSurface(canvas, recorder, "a.txt", Width, Height, Ground); }),
            FailureKind::InvalidArgument);
}

TEST_F(SvgPictures, AFolderThatIsNotThereFails) {
  EXPECT_EQ(FailureOf([&] { WriteSurface(canvas, recorder, "none/a.svg", Width, Height, Ground); }),
            FailureKind::FileAccess);
}

}  // namespace

}  // namespace zerimo
