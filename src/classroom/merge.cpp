#include <QDateTime>
#include <iostream>
#include <optional>
#include <utility>

#include "batch/errors.h"
#include "classroom/class_run.h"
#include "classroom/marks.h"
#include "classroom/page_html.h"
#include "classroom/parts.h"
#include "classroom/progress.h"
#include "classroom/readable.h"
#include "classroom/report_files.h"
#include "classroom/report_page.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// Programs on one page, which is also how many are in memory at a time.
constexpr std::size_t ProgramsOnPage = 100;

/// Writes a report of any number of runs: an index, and pages beside it.
class Merge {
 public:
  Merge(const Command& command, const std::string& version) : options_(command.Class), files_(options_) {
    report_.Folder = NameOf(files_.Page().stem());
    report_.Version = QString::fromStdString(version);
    report_.Made = QDateTime::currentDateTime().toString(Qt::ISODate);
    report_.Words = options_.Words;
    if (!options_.Marks.empty()) marks_.emplace(options_.Marks);
    AddMarks(MarksHead());
  }

  std::size_t Run() {
    for (const std::string& part : options_.Merged) {
      if (!ForEachRun(part, [this](PupilRun run) { Take(std::move(run)); }))
        throw batch::UsageError("--merge " + part + ": the file can not be read");
    }
    WritePage();
    if (marks_) marks_->Save();
    WriteBeside(files_.Page(), IndexPage(report_, entries_).toStdString());
    return count_;
  }

 private:
  void Take(PupilRun run) {
    ++count_;
    AddMarks(MarksOf(run));
    report_.Runs.push_back(std::move(run));
    if (report_.Runs.size() == ProgramsOnPage) WritePage();
  }

  void AddMarks(const QByteArray& lines) {
    if (marks_) marks_->sputn(lines.constData(), lines.size());
  }

  void WritePage() {
    if (report_.Runs.empty()) return;
    const std::string name = files_.Page().stem().string() + "-" + std::to_string(entries_.size() + 1) + ".html";
    IndexEntry entry{QString::fromStdString(name),
                     PupilName(report_.Runs.front().Who),
                     PupilName(report_.Runs.back().Who),
                     report_.Runs.size(),
                     0,
                     0};
    for (const PupilRun& run : report_.Runs) {
      entry.Ended += run.Went.How == Result::Ended ? 1 : 0;
      entry.Suspicious += run.IsSuspicious() ? 1 : 0;
    }
    const fs::path page = files_.Page().parent_path() / name;
    WriteBeside(page, PageOf(report_, ReportFiles::PicturesBeside(page)).toStdString());
    entries_.push_back(std::move(entry));
    report_.Runs.clear();
  }

  const ClassOptions& options_;
  ReportFiles files_;
  Report report_;
  std::optional<FileToSave> marks_;
  std::vector<IndexEntry> entries_;
  std::size_t count_ = 0;
};

}  // namespace

ClassStatus MergeParts(const Command& command, const std::string& version) {
  Progress progress(std::cerr, Progress::StandardErrorIsTerminal());
  try {
    const std::size_t count = Merge(command, version).Run();
    progress.Close(
        QStringLiteral("%1 programs; the report is %2").arg(count).arg(QString::fromStdString(command.Class.Report)));
    return ClassStatus::ReportWritten;
  } catch (const batch::UsageError&) {
    throw;
  } catch (const std::exception&) {
    progress.Close(QString::fromStdString(command.Class.Report) + ": the report can not be written");
    return ClassStatus::NotWritten;
  }
}

}  // namespace zerimo::classroom
