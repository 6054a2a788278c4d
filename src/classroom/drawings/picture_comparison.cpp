#include "classroom/drawings/picture_comparison.h"

#include <QHash>
#include <algorithm>

namespace zerimo::classroom {

namespace {

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

  QSize Size() const { return image_.size(); }
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

 private:
  QImage image_;
  QRgb background_;
};

}  // namespace

PixelComparison ComparePixels(const QImage& goal, const QImage& picture, int near, bool colour) {
  PixelComparison result;
  if (goal.isNull() || picture.isNull()) return result;
  const Drawn wanted(goal);
  const Drawn drawn(picture.size() == goal.size() ? picture : picture.scaled(goal.size()));
  result.Difference = QImage(goal.size(), QImage::Format_RGB32);
  result.Difference.fill(Nothing);
  double both = 0;
  double all = 0;
  for (int y = 0; y < goal.height(); ++y) {
    for (int x = 0; x < goal.width(); ++x) {
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

}  // namespace zerimo::classroom
