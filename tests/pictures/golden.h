#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <string>

namespace zerimo {

/// The picture of that name in the folder of golden pictures. With ZERIMO_UPDATE_GOLDEN set in the environment,
/// `actual` replaces it first; look at it before you commit it.
QImage GoldenPicture(const std::string& name, const QImage& actual);

/// Whether a picture is the golden one, pixel for pixel. If not, a picture that shows the golden one, the actual one
/// and their difference side by side is written to the folder `pixel-differences`.
::testing::AssertionResult IsGolden(const std::string& name, const QImage& actual);

/// Writes that picture and returns where it is.
std::string WriteDifference(const std::string& name, const QImage& expected, const QImage& actual);

}  // namespace zerimo
