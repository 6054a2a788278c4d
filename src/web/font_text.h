#pragma once

#include <filesystem>
#include <memory>

#include "pixels/text_drawer.h"

namespace zerimo::web {

/// Text from a TrueType font. A pixel belongs to a letter if the letter covers half of it.
class FontText : public TextDrawer {
 public:
  /// Fails (file access) if the file can't be read as a font.
  explicit FontText(const std::filesystem::path& fontFile);
  ~FontText() override;

  PixelRect Print(PixelBuffer& pixels, std::string_view text, PixelPoint at, double pointSize, Pixel color) override;

 private:
  struct Font;
  std::unique_ptr<Font> font_;
};

}  // namespace zerimo::web
