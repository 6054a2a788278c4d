#pragma once

#include <QImage>

namespace zerimo {

/// The share of pixels of either picture with no pixel of about the same colour in the other one, in the same place or
/// next to it. 0 for pictures that show the same, however their edges were rounded; 1 for different sizes.
double Unlikeness(const QImage& one, const QImage& other);

/// The greatest difference in the share of ink in squares of eight pixels; tolerates another version of a font.
double InkDifference(const QImage& one, const QImage& other, QRgb ground);

}  // namespace zerimo
