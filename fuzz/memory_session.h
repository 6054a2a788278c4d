#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "batch/batch_session.h"
#include "pixels/pixel_canvas.h"

namespace zerimo::fuzz {

/// Prints boxes in the place of letters.
class BoxDrawer : public TextDrawer {
 public:
  PixelRect Print(PixelBuffer&, std::string_view, PixelPoint, double, Pixel) override { return {}; }
};

/// Every file is a picture of one pixel.
class NoPictureFiles : public PictureFiles {
 public:
  PixelBuffer Read(const std::filesystem::path&, int, int, Pixel background) override { return {1, 1, background}; }
  void Write(const PixelBuffer&, int, int, const std::filesystem::path&) override {}
};

/// A session on a small screen that keeps its limits by counting alone.
class MemorySession {
 public:
  static batch::Settings Limits() {
    batch::Settings settings;
    settings.Screen = {64 * UnitsPerPixel, 130 * UnitsPerPixel};
    settings.Steps = 200;
    settings.Ticks = 4'000;
    settings.Seconds = 0;
    settings.Output = 1;
    return settings;
  }

  explicit MemorySession(const Disk& disk)
      : pixels_(std::make_unique<BoxDrawer>(), std::make_unique<NoPictureFiles>()),
        journal_(&transcript_, &people_),
        session_(Limits(), pixels_, journal_, {}, disk) {}

  batch::BatchSession& Session() { return session_; }
  std::string Transcript() const { return transcript_.str(); }

 private:
  std::ostringstream transcript_;
  std::ostringstream people_;
  PixelCanvas pixels_;
  batch::Journal journal_;
  batch::BatchSession session_;
};

}  // namespace zerimo::fuzz
