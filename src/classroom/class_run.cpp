#include "classroom/class_run.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <iostream>
#include <utility>

#include "batch/errors.h"
#include "classroom/class_folder.h"
#include "classroom/class_runner.h"
#include "classroom/interruption.h"
#include "classroom/progress.h"
#include "classroom/readable.h"
#include "classroom/report_page.h"
#include "classroom/summary.h"
#include "classroom/words.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

fs::path FolderOf(const std::string& name) {
  std::error_code error;
  if (!fs::is_directory(name, error)) throw batch::UsageError("--class " + name + ": there is no such folder");
  // Without a divider at its end, so that it has a name.
  fs::path folder = fs::canonical(name, error);
  if (error) throw batch::UsageError("--class " + name + ": the folder can not be read");
  return folder;
}

std::vector<Pupil> PupilsIn(const fs::path& folder, const std::string& name) {
  try {
    return PupilsOf(folder);
  } catch (const fs::filesystem_error&) {
    throw batch::UsageError("--class " + name + ": the folder can not be read");
  }
}

fs::path SummaryFileOf(fs::path report) { return report.replace_extension(".json"); }

/// Told before hundreds of programs have run in vain.
fs::path ReportFileOf(const std::string& name) {
  std::error_code error;
  fs::path file = fs::absolute(name, error);
  const fs::path folder = file.parent_path();
  const bool isPlace = !error && fs::is_directory(folder, error) && !fs::is_directory(file, error) &&
                       !fs::is_directory(SummaryFileOf(file), error) && CanWriteInto(folder);
  if (!isPlace) throw batch::UsageError("--out " + name + ": no file can be written there");
  return file;
}

int JobsOf(const batch::Options& options) {
  if (options.Class.Jobs > 0) return options.Class.Jobs;
  return std::clamp(QThread::idealThreadCount(), 1, batch::ClassOptions::MostJobs);
}

class ClassRun {
 public:
  ClassRun(const batch::Options& givenOptions, const std::string& version)
      : options(givenOptions),
        folder(FolderOf(options.Class.Folder)),
        file(ReportFileOf(options.Class.Report)),
        pupils(PupilsIn(folder, options.Class.Folder)) {
    report.Folder = NameOf(folder.filename());
    report.Version = QString::fromStdString(version);
    report.Limits = {options.Session.Seconds, options.Session.Steps, options.Class.Memory};
  }

  ClassStatus Run() {
    const Interruption interruption;
    const QTemporaryDir place;
    if (!place.isValid()) return Close(ClassStatus::NotWritten, "there is no room for temporary files");
    if (!RunAll(place.path())) return Close(ClassStatus::Interrupted, "interrupted, no report is written");
    try {
      WriteFiles();
    } catch (const std::exception&) {
      return Close(ClassStatus::NotWritten, NameOf(file) + ": the report can not be written");
    }
    return Close(ClassStatus::ReportWritten, LastWords());
  }

 private:
  bool RunAll(const QString& place) {
    ClassRunner::Plan plan{report.Limits, options.Session.Screen, JobsOf(options),
                           QCoreApplication::applicationFilePath(), place.toStdU16String()};
    const std::size_t all = pupils.size();
    ClassRunner runner(std::move(plan), std::move(pupils), [this, all](const PupilRun& run, std::size_t done) {
      progress.Tell(done, all, ReadableName(run.Who.Program) + u' ' + WordsOf(run.Went, report.Limits));
    });
    std::optional<std::vector<PupilRun>> runs = runner.Run();
    if (!runs || Interruption::Came()) return false;
    report.Runs = std::move(*runs);
    report.Made = QDateTime::currentDateTime().toString(Qt::ISODate);
    return true;
  }

  /// Each file takes its place when it is whole.
  void WriteFiles() {
    const QByteArray page = PageOf(report);
    WriteBeside(SummaryFileOf(file), SummaryOf(report).toStdString());
    WriteBeside(file, page.toStdString());
  }

  QString LastWords() const {
    const auto ended = std::ranges::count(report.Runs, Result::Ended, [](const PupilRun& run) { return run.Went.How; });
    if (report.Runs.empty()) return QStringLiteral("there is no program in the folder; the report says so");
    return QStringLiteral("%1 of %2 programs ended by themselves; the report is %3")
        .arg(ended)
        .arg(report.Runs.size())
        .arg(NameOf(file));
  }

  ClassStatus Close(ClassStatus status, const QString& words) {
    progress.Close(words);
    return status;
  }

  const batch::Options& options;
  fs::path folder;
  fs::path file;
  std::vector<Pupil> pupils;
  Report report;
  Progress progress{std::cerr, Progress::StandardErrorIsTerminal()};
};

}  // namespace

ClassStatus RunClass(const batch::Options& options, const std::string& version) {
  return ClassRun(options, version).Run();
}

}  // namespace zerimo::classroom
