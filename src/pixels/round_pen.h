#pragma once

#include <array>
#include <cstddef>

namespace zerimo {

/// The columns of a row, both ends included; empty if the first is after the last.
struct ColumnSpan {
  bool operator==(const ColumnSpan&) const = default;

  int First;
  int Last;
};

/// The pixels of a round point of some width: those whose centre is no farther from its middle than half the width. An
/// even width is half a pixel too far left and up. The rows of the usual widths are worked out once.
class RoundPen {
 public:
  /// Pixels, from 1.
  explicit RoundPen(int width);

  int Width() const noexcept { return width_; }
  /// Rows above the one that the pen is put on.
  int Above() const noexcept { return width_ / 2; }

  /// The columns in a row of the pen, 0 to its width minus one from the top, relative to the column that it is put on.
  ColumnSpan Row(int row) const noexcept {
    return width_ <= WidestKept ? kept_[static_cast<std::size_t>(row)] : WorkOut(row);
  }

 private:
  static constexpr int WidestKept = 64;

  ColumnSpan WorkOut(int row) const noexcept;

  int width_;
  std::array<ColumnSpan, WidestKept> kept_;
};

}  // namespace zerimo
