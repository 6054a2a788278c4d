#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QImage>
#include <QRawFont>
#include <QRect>
#include <QString>
#include <array>
#include <string_view>

#include "graphics/canvas.h"

namespace zerimo {

/// The system's font in a size, with the measures of its characters. Points are those of a screen with 96 dots to the
/// inch, whatever the screen is. Needs a QGuiApplication.
class TextFont {
 public:
  explicit TextFont(double pointSize);

  double PointSize() const { return points; }
  const QFont& Font() const { return font; }
  /// Pixels from the top of a line of text to its base line.
  int Ascent() const { return ascent; }
  /// Pixels from the top of a line of text to its bottom.
  int Height() const { return height; }
  /// Pixels that the printable characters of a text take.
  double WidthOf(std::string_view text) const;
  /// The printable characters of a text, side by side: no ligatures and no kerning, one glyph for a character.
  QGlyphRun GlyphsOf(std::string_view text) const;
  double WidthOf(char character) const { return advances[static_cast<unsigned char>(character)]; }

 private:
  double points;
  QFont font;
  QRawFont rawFont;
  int ascent;
  int height;
  /// By the character's code.
  std::array<quint32, 256> glyphs{};
  std::array<double, 256> advances{};
};

/// Control characters print nothing and take no room.
bool IsPrintable(char character);

/// The printable characters of a text.
QString PrintableText(std::string_view text);

/// An image of that size with the resolution that text is measured by.
QImage MakeTextImage(int width, int height, QImage::Format format);

/// Prints a line of text, not smoothed, with its top left corner at a point, and returns the rectangle of the image
/// that may have changed.
QRect PaintText(QImage& image, const TextFont& font, std::string_view text, PixelPoint at, QRgb colour);

}  // namespace zerimo
