#include "pixels/wide_lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "pixels/pixel_rect.h"

namespace zerimo {

namespace {

/// Whether a pen as wide as this stays inside the canvas all along the line.
bool IsInside(const WholeLine& line, int width, const SpanPainter& painter) {
  const auto [left, right] = std::minmax(line.X1, line.X2);
  const auto [top, bottom] = std::minmax(line.Y1, line.Y2);
  return left >= width && top >= width && right < painter.Columns() - width && bottom < painter.Rows() - width;
}

/// Where a row of the line begins and ends; empty if it begins after its end.
struct Edges {
  double From;
  double To;
};

constexpr Edges NoEdges{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
constexpr ColumnSpan NoColumns{std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

/// The two long sides of a line that goes down, and its ends, square to them.
class Flanks {
 public:
  Flanks(const WholeLine& line, int width)
      : aX_(line.X1 - (width % 2 == 0 ? 0.5 : 0)),
        aY_(line.Y1 - (width % 2 == 0 ? 0.5 : 0)),
        dX_(line.X2 - line.X1),
        dY_(line.Y2 - line.Y1) {
    const double square = dX_ * dX_ + dY_ * dY_;
    if (dY_ != 0) {
      sideSlope_ = dX_ / dY_;
      sideReach_ = width / 2.0 * std::sqrt(square) / dY_;
    }
    if (dX_ != 0) {
      endSlope_ = -dY_ / dX_;
      endReach_ = square / dX_;
    }
  }

  /// How far the long sides move sideways per row.
  double SideSlope() const noexcept { return sideSlope_; }

  /// Whether the painter takes the rows that neither end touches for narrow ones, wherever they begin.
  bool AreNarrow() const noexcept {
    constexpr double forRounding = 0.01;
    return 2 * sideReach_ >= SpanPainter::LeastNarrow && 2 * sideReach_ < SpanPainter::MostNarrow - forRounding;
  }

  /// In a row that neither end touches.
  Edges BetweenEnds(int row) const noexcept {
    const double middle = aX_ + (row - aY_) * sideSlope_;
    return {middle - sideReach_, middle + sideReach_};
  }

  /// In any row between the two ends; the round ends may add to them.
  Edges AtRow(int row) const {
    if (dY_ == 0) return NoEdges;
    Edges edges = BetweenEnds(row);
    const double y = row - aY_;
    if (dX_ != 0) {
      const double end = aX_ + y * endSlope_;
      edges.From = std::max(edges.From, std::min(end, end + endReach_));
      edges.To = std::min(edges.To, std::max(end, end + endReach_));
    } else if (y < 0 || y > dY_) {
      return NoEdges;
    }
    return edges;
  }

 private:
  double aX_;
  double aY_;
  double dX_;
  double dY_;
  double sideSlope_ = 0;
  /// The distance of the long sides from the middle in a row.
  double sideReach_ = 0;
  /// The same for the two ends.
  double endSlope_ = 0;
  double endReach_ = 0;
};

void Unite(ColumnSpan& span, const ColumnSpan& other) {
  span = {std::min(span.First, other.First), std::max(span.Last, other.Last)};
}

/// Adds the pen's columns in a row where the pen is put on the point.
void UniteEnd(ColumnSpan& span, const RoundPen& pen, int x, int y, int row) {
  const int penRow = row - y + pen.Above();
  if (static_cast<unsigned>(penRow) >= static_cast<unsigned>(pen.Width())) return;
  const ColumnSpan end = pen.Row(penRow);
  Unite(span, {x + end.First, x + end.Last});
}

/// The columns between the edges, for a line that is inside the canvas.
ColumnSpan Columns(const Edges& edges) noexcept {
  return edges.From <= edges.To ? ColumnSpan{FirstFrom(edges.From), LastTo(edges.To)} : NoColumns;
}

/// The same for any line.
ColumnSpan Columns(const Edges& edges, int columnsOfCanvas) noexcept {
  if (!(edges.From <= edges.To)) return NoColumns;
  return {FirstFrom(edges.From, 0, columnsOfCanvas), LastTo(edges.To, -1, columnsOfCanvas - 1)};
}

ColumnSpan WithEnds(ColumnSpan span, const WholeLine& line, const RoundPen& pen, int row) {
  UniteEnd(span, pen, line.X1, line.Y1, row);
  UniteEnd(span, pen, line.X2, line.Y2, row);
  return span;
}

/// A place that moves sideways by the same distance from row to row, in parts of a pixel.
class Slide {
 public:
  /// The greatest size of a place.
  static constexpr double Reach = 1 << 20;

  Slide(double place, double step) : place_(ToParts(place)), step_(ToParts(step)) {}

  /// At or before the place.
  std::ptrdiff_t Column() const noexcept { return static_cast<std::ptrdiff_t>(place_ >> PartBits); }
  /// Whether the rounding of the step, added up over all rows of a canvas, might have led to another column.
  bool IsUncertain() const noexcept { return static_cast<std::uint32_t>(place_) + Near < 2 * Near; }
  void Advance() noexcept { place_ += step_; }

 private:
  static constexpr int PartBits = 32;
  static constexpr double PartsOfPixel = 4294967296;
  static constexpr std::uint32_t Near = 1U << 17;

  static std::int64_t ToParts(double place) noexcept { return static_cast<std::int64_t>(place * PartsOfPixel); }

  std::int64_t place_;
  std::int64_t step_;
};

bool IsWithin(const Edges& edges, double least, double greatest) noexcept {
  return edges.From > least && edges.To < greatest;
}

/// The rows that neither end touches, all of them on the canvas.
void PaintBetweenEnds(SpanPainter& painter, const Flanks& flanks, int first, int last) {
  const auto columns = [&](int row) { return Columns(flanks.BetweenEnds(row), painter.Columns()); };
  const Edges edges = flanks.BetweenEnds(first);
  const auto areWithin = [&](double least, double greatest) {
    return IsWithin(edges, least, greatest) && IsWithin(flanks.BetweenEnds(last), least, greatest);
  };
  if (!areWithin(-Slide::Reach, Slide::Reach)) return painter.PaintRows(first, last, columns);
  Slide from(edges.From, flanks.SideSlope());
  Slide to(edges.To, flanks.SideSlope());
  const auto sliding = [&](int row) {
    std::pair span(from.Column() + 1, to.Column());
    if (from.IsUncertain() || to.IsUncertain()) {
      const ColumnSpan exact = columns(row);
      span = {exact.First, exact.Last};
    }
    from.Advance();
    to.Advance();
    return span;
  };
  if (!areWithin(0, painter.Columns() - 1)) {
    painter.PaintRows(first, last, sliding);
  } else if (flanks.AreNarrow()) {
    painter.PaintNarrowRows(first, last, sliding);
  } else {
    painter.PaintInnerRows(first, last, sliding);
  }
}

/// The rows of a line inside the canvas; none if elsewhere the rounding of its edges might lead to other columns.
std::vector<ColumnSpan> RowsOf(const WholeLine& line, const RoundPen& pen) {
  constexpr double near = 1E-6;
  const Flanks flanks(line, pen.Width());
  std::vector<ColumnSpan> rows;
  for (int row = line.Y1 - pen.Above(); row < line.Y2 - pen.Above() + pen.Width(); ++row) {
    const auto [from, to] = flanks.AtRow(row);
    rows.push_back(WithEnds(Columns({from - near, to + near}), line, pen, row));
    if (rows.back() != WithEnds(Columns({from + near, to - near}), line, pen, row)) return {};
  }
  return rows;
}

}  // namespace

void WideLines::Paint(SpanPainter& painter, WholeLine line, const RoundPen& pen) {
  const bool backward = std::pair(line.Y1, line.X1) > std::pair(line.Y2, line.X2);
  if (backward) line = {line.X2, line.Y2, line.X1, line.Y1};
  const bool isInside = IsInside(line, pen.Width(), painter);
  const Mask& mask = isInside ? MaskOf(line.X2 - line.X1, line.Y2 - line.Y1, pen) : NoMask;
  if (!mask.empty()) return PaintMask(painter, line.X1, line.Y1 - pen.Above(), mask);

  const Flanks flanks(line, pen.Width());
  const auto paintEnds = [&](int first, int last) {
    painter.PaintRows(first, last, [&](int row) {
      const Edges edges = flanks.AtRow(row);
      return WithEnds(isInside ? Columns(edges) : Columns(edges, painter.Columns()), line, pen, row);
    });
  };
  const int top = std::max(line.Y1 - pen.Above(), 0);
  const int bottom = std::min(line.Y2 - pen.Above() + pen.Width(), painter.Rows()) - 1;
  const int afterUpperEnd = std::clamp(line.Y1 - pen.Above() + pen.Width(), top, std::max(top, bottom + 1));
  const int lowerEnd = std::clamp(line.Y2 - pen.Above(), afterUpperEnd, std::max(afterUpperEnd, bottom + 1));
  paintEnds(top, afterUpperEnd - 1);
  PaintBetweenEnds(painter, flanks, afterUpperEnd, lowerEnd - 1);
  paintEnds(lowerEnd, bottom);
}

void WideLines::PaintMask(SpanPainter& painter, int left, int top, const Mask& mask) {
  painter.PaintInnerRows(top, top + static_cast<int>(mask.size()) - 1, [&](int row) {
    const ColumnSpan& span = mask[static_cast<std::size_t>(row - top)];
    return ColumnSpan{left + span.First, left + span.Last};
  });
}

const WideLines::Mask& WideLines::MaskOf(int right, int down, const RoundPen& pen) {
  if (std::abs(right) > LongestMask || down > LongestMask || pen.Width() > WidestMask) return NoMask;
  if (pen.Width() != width_) {
    width_ = pen.Width();
    masks_.clear();
    masks_.resize(MasksAcross * MasksDown);
  }
  std::unique_ptr<Mask>& mask =
      masks_[static_cast<std::size_t>(right + LongestMask) * MasksDown + static_cast<std::size_t>(down)];
  if (!mask) mask = std::make_unique<Mask>(MakeMask(right, down, pen));
  return *mask;
}

WideLines::Mask WideLines::MakeMask(int right, int down, const RoundPen& pen) {
  // Far enough from the edge of the canvas for all columns to be positive.
  constexpr int left = LongestMask + WidestMask;
  Mask mask = RowsOf({left, 0, left + right, down}, pen);
  for (ColumnSpan& span : mask) span = {span.First - left, span.Last - left};
  return mask;
}

}  // namespace zerimo
