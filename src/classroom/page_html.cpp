#include "classroom/page_html.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <algorithm>

#include "classroom/readable.h"
#include "classroom/words.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

/// The colour that a part of a picture has on average.
QRgb MeanOf(const QImage& image, const QRect& part) {
  int red = 0;
  int green = 0;
  int blue = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      red += qRed(pixel);
      green += qGreen(pixel);
      blue += qBlue(pixel);
    }
  }
  const int count = part.width() * part.height();
  return qRgb(red / count, green / count, blue / count);
}

/// An opaque picture reduced to a width. The toolkit's own scaling starts threads, and waits for ever where none can be
/// started.
QImage Reduced(const QImage& image, int width) {
  QImage reduced(QSize(width, std::max(1, image.height() * width / image.width())), QImage::Format_RGB32);
  for (int y = 0; y < reduced.height(); ++y) {
    const int top = y * image.height() / reduced.height();
    const int bottom = (y + 1) * image.height() / reduced.height() - 1;
    for (int x = 0; x < width; ++x) {
      const int left = x * image.width() / width;
      const int right = (x + 1) * image.width() / width - 1;
      reduced.setPixel(x, y, MeanOf(image, QRect(QPoint(left, top), QPoint(right, std::max(top, bottom)))));
    }
  }
  return reduced;
}

/// The picture as it is in its file, or reduced.
QByteArray BytesOfPicture(const std::filesystem::path& file, int width, QSize& size) {
  if (width == 0) {
    size = QImageReader(NameOf(file)).size();
    return QByteArray::fromStdString(BytesOf(file).value_or(std::string()));
  }
  const QImage image(NameOf(file));
  if (image.isNull()) return {};
  const QImage small = image.width() > width ? Reduced(image, width) : image;
  size = small.size();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  small.save(&buffer, "PNG");
  return bytes;
}

}  // namespace

QString Escaped(const QString& text) { return text.toHtmlEscaped(); }

QString EscapedLines(const QString& text) { return Escaped(ReadableLines(text)); }

QString EscapedReadable(const QString& text) { return Escaped(Readable(text)); }

QString Element(const char* name, const char* kind, const QString& html) {
  const QString attribute = *kind == '\0' ? QString() : QStringLiteral(" class=\"%1\"").arg(QLatin1String(kind));
  return u'<' + QLatin1String(name) + attribute + u'>' + html + QStringLiteral("</") + QLatin1String(name) + u'>';
}

QString Paragraph(const QString& html) { return Element("p", "", html) + u'\n'; }

QString Heading(const char* words) { return Element("h3", "", Utf8(words)) + u'\n'; }

QString Utf8(const char* words) { return QString::fromUtf8(words); }

QString PupilName(const Pupil& pupil) { return pupil.Name.isEmpty() ? NameOf(PlaceOf(pupil)) : pupil.Name; }

std::optional<QString> PictureSource::Image(const std::filesystem::path& file, const QString& alternative, int width) {
  if (file.empty()) return std::nullopt;
  // Beside the page, one picture serves all sizes.
  const bool liesBeside = !beside_.empty() && bytes_ >= mostInside_;
  QSize size;
  const QByteArray bytes = BytesOfPicture(file, liesBeside ? 0 : width, size);
  if (bytes.isEmpty()) return std::nullopt;
  if (width > 0 && size.width() > width) size.scale(width, size.height(), Qt::KeepAspectRatio);
  bytes_ += static_cast<std::size_t>(bytes.size());
  if (IsFull()) return std::nullopt;
  return QStringLiteral("<img width=\"%1\" height=\"%2\" alt=\"").arg(size.width()).arg(size.height()) + alternative +
         QStringLiteral("\" src=\"") + AddressOf(file, bytes) + QStringLiteral("\">");
}

QString PictureSource::AddressOf(const std::filesystem::path& file, const QByteArray& bytes) {
  if (!beside_.empty() && bytes_ > mostInside_) return Beside(file);
  return QStringLiteral("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64());
}

QString PictureSource::Beside(const std::filesystem::path& file) {
  QString& address = addresses_[file];
  if (!address.isEmpty()) return address;
  const std::string name = std::to_string(addresses_.size()) + ".png";
  std::error_code error;
  std::filesystem::create_directory(beside_, error);
  WriteBeside(beside_ / name, BytesOf(file).value_or(std::string()));
  const QByteArray folder = QByteArray::fromStdString(beside_.filename().string()).toPercentEncoding();
  address = QString::fromLatin1(folder) + u'/' + QString::fromStdString(name);
  return address;
}

QString ResultHtml(const PupilRun& run, const Language& language) {
  const bool isGood = run.Outcome.How == Result::Ended;
  const QString words = Escaped(WordsOf(run.Outcome, run.Limits, language));
  if (isGood && run.IsSuspicious()) return Element("span", "look", words);
  return Element("span", isGood ? "good" : "bad", words);
}

double PointsOf(const PupilRun& run) {
  double points = 0;
  for (const GoalOutcome& goal : run.Outcome.Goals) points += goal.Met ? goal.Points : 0;
  return points;
}

double MostPointsOf(const PupilRun& run) {
  double points = 0;
  for (const GoalOutcome& goal : run.Outcome.Goals) points += goal.Points;
  return points;
}

}  // namespace zerimo::classroom
