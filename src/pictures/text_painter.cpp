#include "pictures/text_painter.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>

#include "base/wide_registers.h"
#include "pictures/image_canvas.h"

namespace zerimo {

namespace {

QFont MakeFont(double pointSize) {
  QFont font(QStringList{"Arial", "Liberation Sans"});
  font.setStyleHint(QFont::SansSerif, QFont::NoAntialias);
  font.setHintingPreference(QFont::PreferFullHinting);
  font.setKerning(false);
  font.setPointSizeF(pointSize);
  return font;
}

/// The part of a text that can be seen, and where it begins.
struct VisibleText {
  std::string_view Text;
  double X;
};

/// Leaves out what is entirely to the left or right of the image. A letter may lean out of its own width, so its
/// neighbour stays.
VisibleText CutSideways(const TextFont& font, std::string_view text, double x, int columns) {
  const double margin = font.Height();
  while (!text.empty() && x + font.WidthOf(text.front()) + margin < 0) {
    x += font.WidthOf(text.front());
    text.remove_prefix(1);
  }
  std::size_t count = 0;
  for (double end = x; count < text.size() && end < columns + margin; ++count) end += font.WidthOf(text[count]);
  return {text.substr(0, count), x};
}

}  // namespace

TextFont::TextFont(double pointSize) : points_(pointSize) {
  QImage device = MakeTextImage(1, 1, QImage::Format_RGB32);
  font_ = QFont(MakeFont(pointSize), &device);
  const QFontMetricsF metrics(font_, &device);
  ascent_ = static_cast<int>(std::lround(metrics.ascent()));
  height_ = static_cast<int>(std::ceil(metrics.height()));
  rawFont_ = QRawFont::fromFont(font_);
  std::string printable;
  for (int code = 0; code < 256; ++code) {
    if (IsPrintable(static_cast<char>(code))) printable += static_cast<char>(code);
  }
  const QVector<quint32> indexes = rawFont_.glyphIndexesForString(PrintableText(printable));
  const QVector<QPointF> steps = rawFont_.advancesForGlyphIndexes(indexes);
  for (qsizetype n = 0; n < indexes.size(); ++n) {
    const auto code = static_cast<unsigned char>(printable[static_cast<std::size_t>(n)]);
    glyphs_[code] = indexes[n];
    advances_[code] = steps[n].x();
  }
}

double TextFont::WidthOf(std::string_view text) const {
  double width = 0;
  for (const char character : text) width += WidthOf(character);
  return width;
}

QGlyphRun TextFont::GlyphsOf(std::string_view text) const {
  QVector<quint32> indexes;
  QVector<QPointF> places;
  indexes.reserve(static_cast<qsizetype>(text.size()));
  places.reserve(static_cast<qsizetype>(text.size()));
  double x = 0;
  for (const char character : text) {
    if (!IsPrintable(character)) continue;
    indexes.append(glyphs_[static_cast<unsigned char>(character)]);
    places.append(QPointF(x, 0));
    x += WidthOf(character);
  }
  QGlyphRun run;
  run.setRawFont(rawFont_);
  run.setGlyphIndexes(indexes);
  run.setPositions(places);
  return run;
}

QString PrintableText(std::string_view text) {
  QString printable;
  printable.reserve(static_cast<qsizetype>(text.size()));
  for (const char character : text) {
    if (IsPrintable(character)) printable.append(QLatin1Char(character));
  }
  return printable;
}

PixelRect TextPainter::Print(PixelBuffer& pixels, std::string_view text, PixelPoint at, double pointSize, Pixel color) {
  const TextFont& font = FontOf(pointSize);
  // Letters may stick out of their line by its height at most.
  if (at.Y > pixels.Rows() + font.Height() || at.Y < -2.0 * font.Height() || at.X > pixels.Columns() + font.Height()) {
    return {};
  }
  const VisibleText visible = CutSideways(font, text, at.X, pixels.Columns());
  const QGlyphRun glyphs = font.GlyphsOf(visible.Text);
  if (glyphs.isEmpty()) return {};
  QImage image = ImageOver(pixels);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::TextAntialiasing, false);
  painter.setPen(QColor::fromRgb(color));
  painter.drawGlyphRun(QPointF(visible.X, at.Y + font.Ascent()), glyphs);
  FreeWideRegisters();
  const double end = visible.X + font.WidthOf(visible.Text);
  return OnCanvas(visible.X - font.Height(), at.Y - font.Height(), end + font.Height(), at.Y + 2 * font.Height(),
                  pixels.Columns(), pixels.Rows());
}

const TextFont& TextPainter::FontOf(double pointSize) {
  startToolkit_();
  if (!lastFont_ || lastFont_->PointSize() != pointSize) lastFont_.emplace(pointSize);
  return *lastFont_;
}

}  // namespace zerimo
