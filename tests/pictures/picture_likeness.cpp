#include "pictures/picture_likeness.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace zerimo {

namespace {

constexpr int SameColour = 60;
constexpr int Square = 8;

bool AreLike(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) <= SameColour && std::abs(qGreen(a) - qGreen(b)) <= SameColour &&
         std::abs(qBlue(a) - qBlue(b)) <= SameColour;
}

bool HasLikeNear(const QImage& image, int x, int y, QRgb colour) {
  for (int row = std::max(y - 1, 0); row <= std::min(y + 1, image.height() - 1); ++row) {
    for (int column = std::max(x - 1, 0); column <= std::min(x + 1, image.width() - 1); ++column) {
      if (AreLike(image.pixel(column, row), colour)) return true;
    }
  }
  return false;
}

int CountLonely(const QImage& one, const QImage& other) {
  int count = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) count += HasLikeNear(other, x, y, one.pixel(x, y)) ? 0 : 1;
  }
  return count;
}

double InkIn(const QImage& image, const QRect& part, QRgb ground) {
  int ink = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) ink += image.pixel(x, y) == ground ? 0 : 1;
  }
  return 1.0 * ink / (Square * Square);
}

}  // namespace

double Unlikeness(const QImage& one, const QImage& other) {
  if (one.size() != other.size()) return 1;
  return (CountLonely(one, other) + CountLonely(other, one)) / (2.0 * one.width() * one.height());
}

double InkDifference(const QImage& one, const QImage& other, QRgb ground) {
  if (one.size() != other.size()) return 1;
  double greatest = 0;
  for (int y = 0; y < one.height(); y += Square) {
    for (int x = 0; x < one.width(); x += Square) {
      const QRect part = QRect(x, y, Square, Square) & one.rect();
      greatest = std::max(greatest, std::abs(InkIn(one, part, ground) - InkIn(other, part, ground)));
    }
  }
  return greatest;
}

}  // namespace zerimo
