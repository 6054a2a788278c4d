#include "pictures/golden.h"

#include <QDir>
#include <QPainter>
#include <algorithm>

namespace zerimo {

namespace {

constexpr int Enlargement = 4;
constexpr int Gap = 8;
constexpr QRgb Same = 0xFF202020;
constexpr QRgb Differs = 0xFFFF40FF;

QImage DifferenceOf(const QImage& expected, const QImage& actual) {
  QImage difference(expected.size().expandedTo(actual.size()), QImage::Format_RGB32);
  for (int y = 0; y < difference.height(); ++y) {
    for (int x = 0; x < difference.width(); ++x) {
      const bool isInBoth = expected.rect().contains(x, y) && actual.rect().contains(x, y);
      difference.setPixel(x, y, isInBoth && expected.pixel(x, y) == actual.pixel(x, y) ? Same : Differs);
    }
  }
  return difference;
}

}  // namespace

QImage GoldenPicture(const std::string& name, const QImage& actual) {
  const QString file = QString::fromStdString(ZERIMO_SOURCE_DIR "/tests/pictures/golden/" + name + ".png");
  if (qEnvironmentVariableIsSet("ZERIMO_UPDATE_GOLDEN")) actual.save(file);
  return QImage(file).convertToFormat(QImage::Format_RGB32);
}

::testing::AssertionResult IsGolden(const std::string& name, const QImage& actual) {
  const QImage expected = GoldenPicture(name, actual);
  if (expected == actual) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "expected, actual and difference: "
                                       << WriteDifference(name, expected, actual);
}

std::string WriteDifference(const std::string& name, const QImage& expected, const QImage& actual) {
  const QImage difference = DifferenceOf(expected, actual);
  QImage sheet(3 * difference.width() * Enlargement + 2 * Gap, difference.height() * Enlargement, QImage::Format_RGB32);
  sheet.fill(Qt::gray);
  QPainter painter(&sheet);
  int left = 0;
  for (const QImage& image : {expected, actual, difference}) {
    painter.drawImage(QRect(QPoint(left, 0), image.size() * Enlargement), image);
    left += difference.width() * Enlargement + Gap;
  }
  painter.end();
  QDir().mkpath("pixel-differences");
  const QString file = QDir("pixel-differences").absoluteFilePath(QString::fromStdString(name) + ".png");
  sheet.save(file);
  return file.toStdString();
}

}  // namespace zerimo
