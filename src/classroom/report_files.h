#pragma once

#include <QByteArray>
#include <QString>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "classroom/class_options.h"
#include "classroom/report.h"

namespace zerimo::classroom {

/// A class run for other programs, as JSON in UTF-8.
QByteArray SummaryOf(const Report& report);

/// A file of a report can't be written.
struct NotSaved : std::runtime_error {
  explicit NotSaved(std::filesystem::path file) : std::runtime_error("not saved"), File(std::move(file)) {}
  std::filesystem::path File;
};

/// The files that a class run writes: the page, its summary, the marks and the pupils' pages.
class ReportFiles {
 public:
  /// Fails with `UsageError` if nothing can be written there, so that this is known before hundreds of programs have
  /// run in vain.
  explicit ReportFiles(const ClassOptions& options);

  bool HasPage() const { return !page_.empty(); }
  const std::filesystem::path& Page() const { return page_; }
  /// The name of the page, or of the records if there is no page.
  QString Name() const;

  /// Each file appears only when it is complete, the page first. Fails with `NotSaved`.
  void Write(const Report& report) const;

  /// The folder for the pictures that a page does not hold itself.
  static std::filesystem::path PicturesBeside(std::filesystem::path page);

 private:
  void WritePupils(const Report& report) const;

  const ClassOptions& options_;
  std::filesystem::path page_;
};

/// The first line of a table of marks, and the line of one run: comma-separated, in quotes, UTF-8, CRLF. A text that a
/// spreadsheet would take for a formula begins with an apostrophe.
QByteArray MarksHead();
QByteArray MarksOf(const PupilRun& run);

}  // namespace zerimo::classroom
