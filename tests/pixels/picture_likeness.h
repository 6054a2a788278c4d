#pragma once

#include <QImage>

namespace zerimo {

/// The share of pixels of either picture that have no pixel of about their colour in the other one, in the same place
/// or beside it. 0 for pictures that show the same, whatever way their edges were rounded; 1 for different sizes.
double Unlikeness(const QImage& one, const QImage& other);

/// The greatest difference of the share of ink in squares of eight pixels; survives another version of a font.
double InkDifference(const QImage& one, const QImage& other, QRgb ground);

}  // namespace zerimo
