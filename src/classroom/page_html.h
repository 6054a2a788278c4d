#pragma once

#include <QString>
#include <filesystem>
#include <map>
#include <optional>
#include <utility>

#include "classroom/language.h"
#include "classroom/pupil.h"

/// Pieces of the pages of a report.
namespace zerimo::classroom {

/// A text made safe for a page, even between quotes.
QString Escaped(const QString& text);
/// The same for a text of several lines.
QString EscapedLines(const QString& text);
/// What a pupil has written, on one line.
QString EscapedReadable(const QString& text);

/// An element with a class, if `kind` is not empty.
QString Element(const char* name, const char* kind, const QString& html);
QString Paragraph(const QString& html);
QString Heading(const char* words);

/// Words of a language.
QString Utf8(const char* words);

/// What the report calls a pupil.
QString PupilName(const Pupil& pupil);

/// Where the pictures of a page come from.
class PictureSource {
 public:
  /// `beside` is a folder in that of the page: it is made for the pictures that pass `mostInside` bytes, all together.
  /// Without one, those are left out.
  explicit PictureSource(std::filesystem::path beside = {}, std::size_t mostInside = std::size_t{32} << 20)
      : beside_(std::move(beside)), mostInside_(mostInside) {}

  /// An element for the picture, drawn at most `width` pixels wide (0: as large as it is), or nothing if it is not
  /// there or the page is full. Fails (file access) if a picture can't be written beside.
  std::optional<QString> Image(const std::filesystem::path& file, const QString& alternative, int width = 0);
  bool IsFull() const { return bytes_ > mostInside_ && beside_.empty(); }
  bool HasPicturesBeside() const { return !addresses_.empty(); }

 private:
  QString AddressOf(const std::filesystem::path& file, const QByteArray& bytes);
  /// Copies a picture beside the page, once, and returns its address there.
  QString Beside(const std::filesystem::path& file);

  std::filesystem::path beside_;
  std::size_t mostInside_;
  std::size_t bytes_ = 0;
  /// Of the pictures beside, by their files.
  std::map<std::filesystem::path, QString> addresses_;
};

/// The section of the page about one run. `number` counts from 1.
QString SectionOf(const PupilRun& run, std::size_t number, const Language& language, PictureSource& pictures,
                  bool hasOverview);

/// "ended" in the colour that it deserves.
QString ResultHtml(const PupilRun& run, const Language& language);

double PointsOf(const PupilRun& run);
double MostPointsOf(const PupilRun& run);

}  // namespace zerimo::classroom
