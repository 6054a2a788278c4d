#include "classroom/drawings/picture_comparison.h"

#include <QHash>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace zerimo::classroom {

namespace {

/// Sides that differ by a smaller fraction count as equal.
constexpr double SameShape = 0.05;

/// Pixels: something smaller has no shape of its own.
constexpr int LeastSide = 10;

/// Of two placements that fit nearly as well, in per cent, the simpler one is meant.
constexpr double NearlyAsWell = 5;

constexpr QRgb Nothing = qRgb(255, 255, 255);
constexpr QRgb InBoth = qRgb(170, 170, 170);
constexpr QRgb OnlyInGoal = qRgb(0, 90, 200);
constexpr QRgb OnlyInPicture = qRgb(225, 100, 0);

QRgb CommonestColour(const QImage& image) {
  QHash<QRgb, int> counts;
  // Every seventh pixel is enough to find the background.
  for (int y = 0; y < image.height(); ++y) {
    for (int x = y % 7; x < image.width(); x += 7) ++counts[image.pixel(x, y)];
  }
  QRgb commonest = Nothing;
  int most = 0;
  for (auto each = counts.cbegin(); each != counts.cend(); ++each) {
    if (each.value() <= most) continue;
    most = each.value();
    commonest = each.key();
  }
  return commonest;
}

/// A picture whose drawn pixels are known.
class Drawn {
 public:
  explicit Drawn(const QImage& image)
      : image_(image.convertToFormat(QImage::Format_RGB32)), background_(CommonestColour(image_)) {}
  Drawn(QImage image, QRgb background) : image_(std::move(image)), background_(background) {}

  bool Has(int x, int y) const { return image_.rect().contains(x, y) && image_.pixel(x, y) != background_; }
  bool HasNear(int x, int y, int near, QRgb colour, bool colourCounts) const {
    for (int row = y - near; row <= y + near; ++row) {
      for (int column = x - near; column <= x + near; ++column) {
        if (Has(column, row) && (!colourCounts || image_.pixel(column, row) == colour)) return true;
      }
    }
    return false;
  }
  QRgb At(int x, int y) const { return image_.pixel(x, y); }

  /// The smallest rectangle that has all that is drawn; empty if nothing is.
  QRect Box() const {
    QRect box;
    for (int y = 0; y < image_.height(); ++y) {
      for (int x = 0; x < image_.width(); ++x) {
        if (Has(x, y)) box |= QRect(x, y, 1, 1);
      }
    }
    return box;
  }

  /// What is in a rectangle, in black on white.
  QImage InBlack(QRect box) const {
    QImage black(box.size(), QImage::Format_RGB32);
    black.fill(Nothing);
    for (int y = 0; y < box.height(); ++y) {
      for (int x = 0; x < box.width(); ++x) {
        if (Has(box.x() + x, box.y() + y)) black.setPixel(x, y, qRgb(0, 0, 0));
      }
    }
    return black;
  }

 private:
  QImage image_;
  QRgb background_;
};

PixelComparison Compare(const Drawn& wanted, const Drawn& drawn, QSize size, int near, bool colour) {
  PixelComparison result;
  result.Difference = QImage(size, QImage::Format_RGB32);
  result.Difference.fill(Nothing);
  double both = 0;
  double all = 0;
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      const bool inGoal = wanted.Has(x, y);
      const bool inPicture = drawn.Has(x, y);
      if (!inGoal && !inPicture) continue;
      const bool goalIsMet = !inGoal || drawn.HasNear(x, y, near, wanted.At(x, y), colour);
      const bool pictureIsMeant = !inPicture || wanted.HasNear(x, y, near, drawn.At(x, y), colour);
      ++all;
      if (goalIsMet && pictureIsMeant) ++both;
      const QRgb shown = goalIsMet && pictureIsMeant ? InBoth : goalIsMet ? OnlyInPicture : OnlyInGoal;
      result.Difference.setPixel(x, y, shown);
    }
  }
  result.Percent = all == 0 ? 100 : 100 * both / all;
  return result;
}

/// The second picture has the size of the first.
Drawn DrawnLike(const QImage& goal, const QImage& picture) {
  return Drawn(picture.size() == goal.size() ? picture : picture.scaled(goal.size()));
}

/// Thin lines do not get lost.
QImage Stretched(const QImage& black, QSize size) {
  QImage stretched = black.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  constexpr int nearlyWhite = 250;
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x)
      stretched.setPixel(x, y, qRed(stretched.pixel(x, y)) < nearlyWhite ? qRgb(0, 0, 0) : Nothing);
  }
  return stretched;
}

/// How much larger the picture is than the goal; nothing if their sides differ in shape.
std::optional<double> ScaleBetween(QSize goal, QSize picture, int near) {
  const double scale = static_cast<double>(picture.width() + picture.height()) / (goal.width() + goal.height());
  const double off =
      std::max(std::abs(goal.width() * scale - picture.width()), std::abs(goal.height() * scale - picture.height()));
  if (off > std::max(1.0, std::min(2.0 * near, SameShape * (picture.width() + picture.height())))) return std::nullopt;
  if (!IsScale(scale)) return std::nullopt;
  return std::abs(scale - 1) * std::max(goal.width(), goal.height()) <= 2 * near ? 1 : scale;
}

/// A placement, and how much of both pictures then overlaps, in per cent.
struct Fit {
  Placement Placed;
  double Percent;
};

/// Turns and mirrors what is drawn in black, and stretches it to the size of the target. The simpler ways come first.
std::vector<Fit> FitsOf(const QImage& black, const Drawn& target, QSize size, int near) {
  std::vector<Fit> fits;
  for (const bool mirrored : {false, true}) {
    for (const int degrees : {0, 90, -90, 180}) {
      const QImage turned = black.mirrored(mirrored, false).transformed(QTransform().rotate(degrees));
      const std::optional<double> scale = ScaleBetween(turned.size(), size, near);
      if (!scale) continue;
      const Drawn moved(Stretched(turned, size), Nothing);
      // Lines may be as much thicker as the drawing is larger.
      const int thickness = static_cast<int>(std::ceil(near * std::max(1.0, *scale)));
      fits.push_back({{static_cast<double>(degrees), mirrored, *scale, {}},
                      Compare(moved, target, size, thickness, false).Percent});
    }
  }
  return fits;
}

}  // namespace

bool IsBlank(const QImage& image) { return image.isNull() || Drawn(image).Box().isEmpty(); }

PixelComparison ComparePixels(const QImage& goal, const QImage& picture, int near, bool colour) {
  if (goal.isNull() || picture.isNull()) return {};
  return Compare(Drawn(goal), DrawnLike(goal, picture), goal.size(), near, colour);
}

std::optional<Placement> PlacementOfPicture(const QImage& goal, const QImage& picture, int near, double enough) {
  if (goal.isNull() || picture.isNull()) return std::nullopt;
  const Drawn wanted(goal);
  const Drawn drawn = DrawnLike(goal, picture);
  const QRect from = wanted.Box();
  const QRect to = drawn.Box();
  if (from.isEmpty() || std::max(to.width(), to.height()) < LeastSide) return std::nullopt;
  const std::vector<Fit> fits = FitsOf(wanted.InBlack(from), Drawn(drawn.InBlack(to), Nothing), to.size(), near);
  const auto best = std::ranges::max_element(fits, {}, &Fit::Percent);
  if (best == fits.end() || best->Percent < enough) return std::nullopt;
  const auto isAsGood = [&best](const Fit& fit) { return fit.Percent > best->Percent - NearlyAsWell; };
  Placement placed = std::ranges::find_if(fits, isAsGood)->Placed;
  const QPoint shift = to.center() - from.center();
  if (placed.Degrees == 0 && !placed.Mirrored && placed.Scale == 1)
    placed.Shift = {shift.x() * double{UnitsPerPixel}, shift.y() * double{UnitsPerPixel}};
  return placed;
}

}  // namespace zerimo::classroom
