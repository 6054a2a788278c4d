#include "web/font_text.h"

#include <cmath>
#include <string>
#include <vector>

#include "base/failure.h"
#include "files/disk_files.h"
#include "web/stb.h"

namespace zerimo::web {

namespace {

constexpr int HalfCovered = 128;

/// A letter as it covers pixels, 0 to 255 each.
struct Letter {
  int Left;
  int Top;
  int Columns;
  int Rows;
  std::vector<unsigned char> Cover;
};

}  // namespace

struct FontText::Font {
  explicit Font(std::string content) : Content(std::move(content)) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(Content.data());
    const bool isFont = !Content.empty() && stbtt_InitFont(&Info, bytes, stbtt_GetFontOffsetForIndex(bytes, 0)) != 0;
    if (!isFont) throw Failure(FailureKind::FileAccess);
  }

  /// Whole pixels from one letter to the next.
  double Advance(char character, float scale) const {
    int advance = 0;
    stbtt_GetCodepointHMetrics(&Info, static_cast<unsigned char>(character), &advance, nullptr);
    return std::round(static_cast<double>(static_cast<float>(advance) * scale));
  }

  Letter Draw(char character, float scale) const {
    const int code = static_cast<unsigned char>(character);
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    stbtt_GetCodepointBitmapBox(&Info, code, scale, scale, &left, &top, &right, &bottom);
    Letter letter{left, top, right - left, bottom - top, {}};
    letter.Cover.resize(static_cast<std::size_t>(letter.Columns) * static_cast<std::size_t>(letter.Rows));
    if (letter.Cover.empty()) return letter;
    stbtt_MakeCodepointBitmap(&Info, letter.Cover.data(), letter.Columns, letter.Rows, letter.Columns, scale, scale,
                              code);
    return letter;
  }

  std::string Content;
  stbtt_fontinfo Info{};
};

namespace {

/// Puts the part of a letter that lies on the buffer there; its top left corner is a whole place.
void Put(PixelBuffer& pixels, const Letter& letter, int column, int row, Pixel color) {
  const PixelRect part =
      OnCanvas(column, row, column + letter.Columns - 1.0, row + letter.Rows - 1.0, pixels.Columns(), pixels.Rows());
  for (int y = part.Top; y <= part.Bottom; ++y) {
    const unsigned char* const cover = letter.Cover.data() + static_cast<std::ptrdiff_t>(y - row) * letter.Columns;
    for (int x = part.Left; x <= part.Right; ++x) {
      if (cover[x - column] >= HalfCovered) pixels.Row(y)[x] = color;
    }
  }
}

}  // namespace

FontText::FontText(const std::filesystem::path& fontFile)
    : font_(std::make_unique<Font>(BytesOf(fontFile).value_or(std::string()))) {}

FontText::~FontText() = default;

PixelRect FontText::Print(PixelBuffer& pixels, std::string_view text, PixelPoint at, double pointSize, Pixel color) {
  const auto size = static_cast<float>(pointSize * PixelsPerPoint);
  const float scale = stbtt_ScaleForMappingEmToPixels(&font_->Info, size);
  int ascent = 0;
  int descent = 0;
  stbtt_GetFontVMetrics(&font_->Info, &ascent, &descent, nullptr);
  const double baseline = std::round(static_cast<double>(static_cast<float>(ascent) * scale));
  const double height = std::ceil(static_cast<double>(static_cast<float>(ascent - descent) * scale));
  // Letters may stick out of their line by as much as its height, but not more.
  if (at.Y > pixels.Rows() + height || at.Y < -2 * height) return {};
  double x = at.X;
  for (const char character : text) {
    if (!IsPrintable(character)) continue;
    if (x > pixels.Columns() + height) break;
    const double advance = font_->Advance(character, scale);
    if (x + advance + height >= 0) {
      const Letter letter = font_->Draw(character, scale);
      Put(pixels, letter, static_cast<int>(x) + letter.Left, static_cast<int>(at.Y + baseline) + letter.Top, color);
    }
    x += advance;
  }
  return OnCanvas(at.X - height, at.Y - height, x + height, at.Y + 2 * height, pixels.Columns(), pixels.Rows());
}

}  // namespace zerimo::web
