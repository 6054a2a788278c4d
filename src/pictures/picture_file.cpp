#include "pictures/picture_file.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <system_error>

#include "base/failure.h"
#include "base/wide_registers.h"
#include "files/disk_files.h"
#include "pictures/image_canvas.h"
#include "pixels/picture_check.h"

namespace zerimo {

namespace {

/// The formats that the reader may report; it reports cursors as icons.
constexpr std::array<std::string_view, 5> ReadableFormats{"bmp", "gif", "ico", "jpeg", "png"};

QString NameOf(const std::filesystem::path& file) {
  return QFile::decodeName(QByteArray::fromStdString(file.string()));
}

QByteArray ReadContent(const std::filesystem::path& file) {
  std::error_code error;
  // Reading a pipe or a device might wait for ever.
  Require(std::filesystem::is_regular_file(file, error), FailureKind::FileNotFound);
  QFile source(NameOf(file));
  Require(source.open(QIODevice::ReadOnly), FailureKind::FileAccess);
  Require(source.size() <= MostPictureBytes, FailureKind::InvalidPicture);
  return source.readAll();
}

/// The upper left part, at most that large; transparent parts stay transparent.
QImage Decoded(QByteArray& content, QSize largest) {
  QBuffer device(&content);
  device.open(QIODevice::ReadOnly);
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  const QByteArray format = reader.format();
  const bool isReadable =
      std::find(ReadableFormats.begin(), ReadableFormats.end(), format.toStdString()) != ReadableFormats.end();
  Require(isReadable && IsWholePicture(content.toStdString(), format.toStdString()), FailureKind::InvalidPicture);
  const QSize size = reader.size();
  Require(!size.isEmpty() && qint64{size.width()} * size.height() <= MostPicturePixels, FailureKind::InvalidPicture);
  reader.setClipRect(QRect(QPoint(0, 0), size.boundedTo(largest)));
  QImage picture = reader.read();
  Require(!picture.isNull(), FailureKind::InvalidPicture);
  return picture;
}

}  // namespace

PixelBuffer QtPictureFiles::Read(const std::filesystem::path& file, int mostColumns, int mostRows, Pixel background) {
  startToolkit_();
  return PictureIn(ReadContent(file), mostColumns, mostRows, background);
}

PixelBuffer PictureIn(QByteArray content, int mostColumns, int mostRows, Pixel background) {
  const QImage picture = Decoded(content, QSize(mostColumns, mostRows));
  PixelBuffer pixels(picture.width(), picture.height(), background);
  QImage image = ImageOver(pixels);
  QPainter(&image).drawImage(QPoint(0, 0), picture);
  FreeWideRegisters();
  return pixels;
}

void QtPictureFiles::Write(const PixelBuffer& pixels, int columns, int rows, const std::filesystem::path& file) {
  startToolkit_();
  const std::string_view format = FormatToWrite(file);
  QByteArray content;
  QBuffer device(&content);
  QImageWriter writer(&device, QByteArray(format.data(), static_cast<qsizetype>(format.size())));
  if (format == "jpeg") writer.setQuality(JpegQuality);
  const QImage image = ImageOver(pixels);
  const QRect part = QRect(0, 0, columns, rows) & image.rect();
  Require(writer.write(part == image.rect() ? image : image.copy(part)), FailureKind::FileAccess);
  FreeWideRegisters();
  WriteBeside(file, content.toStdString());
}

}  // namespace zerimo
