#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "controls/controls.h"

namespace zerimo::batch {

/// What a session runs in.
struct Settings {
  ScreenSize Screen;
  /// The folder of the running program; single-byte text.
  std::string AppFolder = ".";
  /// Passes of Run1's loop in one typed line or handler; 0 is no limit.
  std::uint64_t Steps = 10'000'000;
  /// Rounds of all other loops that may never end, in the whole session; 0 is no limit.
  std::uint64_t Ticks = 0;
  /// Wall-clock time of the whole session; 0 is no limit.
  double Seconds = 60;
  /// Megabytes on top of what the system itself needs; 0 is no limit.
  int Memory = 0;
  /// Megabytes of the journal, for programs and people together; 0 is no limit.
  int Output = 0;
  /// Whether `WAIT` really sleeps.
  bool Sleep = false;
};

/// Whether a file name has one of the endings of the pictures that can be written: .png, .bmp, .jpg, .svg in any case.
bool IsPictureName(std::string_view file);

/// Whether the picture is written from the recorded operations and not from the pixels.
bool IsVectorPictureName(std::string_view file);

/// The number that is the whole text, or nothing. `format` is that of `std::from_chars`.
template <typename Number, typename... Format>
std::optional<Number> WholeText(std::string_view text, Format... format) {
  Number number{};
  const char* const end = text.data() + text.size();
  const std::from_chars_result result = std::from_chars(text.data(), end, number, format...);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

}  // namespace zerimo::batch
