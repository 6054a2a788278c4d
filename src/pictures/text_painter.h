#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QString>
#include <array>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

#include "pixels/text_drawer.h"

namespace zerimo {

/// The system's font in a size, with the measurements of its characters. Points are those of a screen with 96 dots to
/// the inch, whatever the screen is. Needs a QGuiApplication.
class TextFont {
 public:
  explicit TextFont(double pointSize);

  double PointSize() const { return points_; }
  const QFont& Font() const { return font_; }
  /// Pixels from the top of a line of text to its base line.
  int Ascent() const { return ascent_; }
  /// Pixels from the top of a line of text to its bottom.
  int Height() const { return height_; }
  /// Pixels that the printable characters of a text take.
  double WidthOf(std::string_view text) const;
  /// The printable characters of a text, side by side: no ligatures and no kerning, one glyph for a character.
  QGlyphRun GlyphsOf(std::string_view text) const;
  double WidthOf(char character) const { return advances_[static_cast<unsigned char>(character)]; }

 private:
  double points_;
  QFont font_;
  QRawFont rawFont_;
  int ascent_;
  int height_;
  /// By the character's code.
  std::array<quint32, 256> glyphs_{};
  std::array<double, 256> advances_{};
};

/// The printable characters of a text.
QString PrintableText(std::string_view text);

/// Text by Qt. Needs a QGuiApplication, which `startToolkit` may create.
class TextPainter : public TextDrawer {
 public:
  explicit TextPainter(std::function<void()> startToolkit) : startToolkit_(std::move(startToolkit)) {}

  PixelRect Print(PixelBuffer& pixels, std::string_view text, PixelPoint at, double pointSize, Pixel color) override;

 private:
  const TextFont& FontOf(double pointSize);

  std::function<void()> startToolkit_;
  std::optional<TextFont> lastFont_;
};

}  // namespace zerimo
