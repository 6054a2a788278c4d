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

int JobsOf(const ClassOptions& options) {
  if (options.Jobs > 0) return options.Jobs;
  return std::clamp(QThread::idealThreadCount(), 1, ClassOptions::MostJobs);
}

class ClassRun {
 public:
  ClassRun(const Command& command, const std::string& version)
      : options_(command.Class),
        settings_(command.Runner.Session),
        folder_(FolderOf(options_.Folder)),
        file_(ReportFileOf(options_.Report)),
        pupils_(PupilsIn(folder_, options_.Folder)) {
    report_.Folder = NameOf(folder_.filename());
    report_.Version = QString::fromStdString(version);
    report_.Limits = {settings_.Seconds, settings_.Steps, options_.Memory};
  }

  ClassStatus Run() {
    const Interruption interruption;
    const QTemporaryDir place;
    if (!place.isValid()) return Close(ClassStatus::NotWritten, "there is no room for temporary files");
    if (!RunAll(place.path())) return Close(ClassStatus::Interrupted, "interrupted, no report is written");
    try {
      WriteFiles();
    } catch (const std::exception&) {
      return Close(ClassStatus::NotWritten, NameOf(file_) + ": the report can not be written");
    }
    return Close(ClassStatus::ReportWritten, LastWords());
  }

 private:
  bool RunAll(const QString& place) {
    ClassRunner::Plan plan{report_.Limits, settings_.Screen, JobsOf(options_), QCoreApplication::applicationFilePath(),
                           place.toStdU16String()};
    const std::size_t all = pupils_.size();
    ClassRunner runner(std::move(plan), std::move(pupils_), [this, all](const PupilRun& run, std::size_t done) {
      progress_.Tell(done, all, ReadableName(run.Who.Program) + u' ' + WordsOf(run.Went, report_.Limits));
    });
    std::optional<std::vector<PupilRun>> runs = runner.Run();
    if (!runs || Interruption::Came()) return false;
    report_.Runs = std::move(*runs);
    report_.Made = QDateTime::currentDateTime().toString(Qt::ISODate);
    return true;
  }

  /// Each file takes its place when it is whole.
  void WriteFiles() {
    const QByteArray page = PageOf(report_);
    WriteBeside(SummaryFileOf(file_), SummaryOf(report_).toStdString());
    WriteBeside(file_, page.toStdString());
  }

  QString LastWords() const {
    const auto ended =
        std::ranges::count(report_.Runs, Result::Ended, [](const PupilRun& run) { return run.Went.How; });
    if (report_.Runs.empty()) return QStringLiteral("there is no program in the folder; the report says so");
    return QStringLiteral("%1 of %2 programs ended by themselves; the report is %3")
        .arg(ended)
        .arg(report_.Runs.size())
        .arg(NameOf(file_));
  }

  ClassStatus Close(ClassStatus status, const QString& words) {
    progress_.Close(words);
    return status;
  }

  const ClassOptions& options_;
  const batch::Settings& settings_;
  fs::path folder_;
  fs::path file_;
  std::vector<Pupil> pupils_;
  Report report_;
  Progress progress_{std::cerr, Progress::StandardErrorIsTerminal()};
};

}  // namespace

ClassStatus RunClass(const Command& command, const std::string& version) { return ClassRun(command, version).Run(); }

}  // namespace zerimo::classroom
