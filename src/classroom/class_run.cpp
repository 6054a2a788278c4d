#include "classroom/class_run.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QImage>
#include <QThread>
#include <algorithm>
#include <iostream>
#include <optional>
#include <utility>

#include "batch/errors.h"
#include "classroom/class_folder.h"
#include "classroom/class_runner.h"
#include "classroom/drawings/picture_comparison.h"
#include "classroom/fingerprint.h"
#include "classroom/page_html.h"
#include "classroom/parts.h"
#include "classroom/program_source.h"
#include "classroom/progress.h"
#include "classroom/readable.h"
#include "classroom/report_files.h"
#include "classroom/task.h"
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
  if (error) throw batch::UsageError("--class " + name + ": the folder can't be read");
  return folder;
}

std::string ContentOf(const char* option, const std::string& name) {
  if (name.empty()) return {};
  const std::optional<std::string> bytes = BytesOf(name);
  if (!bytes) throw batch::UsageError(std::string(option) + " " + name + ": the file can't be read");
  return *bytes;
}

/// What may lie in the class folder, but is no pupil's.
std::vector<fs::path> Apart(const ClassOptions& options) {
  std::vector<fs::path> apart;
  std::error_code error;
  for (const std::string& name : {options.Task, options.Pupils})
    if (!name.empty()) apart.push_back(fs::weakly_canonical(name, error));
  return apart;
}

/// All programs, those that other shards run included.
std::vector<Pupil> AllPupils(const ClassOptions& options) {
  const bool isList = options.Folder.empty();
  const std::string words = isList ? "--list " + options.List : "--class " + options.Folder;
  std::vector<Pupil> pupils;
  try {
    pupils =
        isList ? PupilsListedIn(options.List) : PupilsOf(FolderOf(options.Folder), options.FollowLinks, Apart(options));
  } catch (const fs::filesystem_error&) {
    throw batch::UsageError(words + (isList ? ": the file can't be read" : ": the folder can't be read"));
  }
  if (pupils.empty()) throw batch::UsageError(words + ": there is no program (.ZRM) in it");
  if (TakeNames(pupils, ContentOf("--names", options.Names)) == 0 && !options.Names.empty())
    std::cerr << "zerimo-batch: --names " << options.Names << ": no line of it is about a program\n";
  ContentOf("--session", options.Session);
  return pupils;
}

/// Those of a part, with their sessions.
std::vector<Pupil> PupilsOfPart(std::vector<Pupil> pupils, const ClassOptions& options) {
  std::vector<Pupil> own;
  for (std::size_t i = 0; i < pupils.size(); ++i) {
    if (i % static_cast<std::size_t>(options.Part.Count) != static_cast<std::size_t>(options.Part.Index - 1)) continue;
    if (pupils[i].Session.empty() && !options.Session.empty()) pupils[i].Session = fs::absolute(options.Session);
    own.push_back(std::move(pupils[i]));
  }
  return own;
}

int JobsOf(const ClassOptions& options) {
  if (options.Jobs > 0) return options.Jobs;
  return std::clamp(QThread::idealThreadCount(), 1, ClassOptions::MostJobs);
}

class ClassRun {
 public:
  ClassRun(const Command& command, const std::string& version)
      : options_(command.classOptions),
        settings_(command.options.settings),
        limits_{settings_.Seconds, settings_.Steps, settings_.Memory},
        pupils_(AllPupils(options_)),
        all_(pupils_.size()),
        alike_(TemplateOf(options_)),
        files_(options_) {
    pupils_ = PupilsOfPart(std::move(pupils_), options_);
    if (!options_.Task.empty()) task_ = ReadTask(options_.Task);
    report_.Folder =
        NameOf(options_.Folder.empty() ? fs::path(options_.List).filename() : FolderOf(options_.Folder).filename());
    report_.Version = QString::fromStdString(version);
    report_.Limits = limits_;
    report_.TaskTitle = task_.Title;
    report_.TaskWords = task_.Words;
    report_.Words = options_.Words;
    report_.Wanted = pupils_.size();
  }

  ClassStatus Run() {
    const Interruption interruption;
    const RunsFolder place;
    if (!place.IsThere()) return Close(ClassStatus::NotWritten, "there is no room for temporary files");
    try {
      return RunIn(place.Path());
    } catch (const batch::UsageError&) {
      throw;
    } catch (const NoProcess& failure) {
      return Close(ClassStatus::NotWritten, QString::fromLatin1(failure.what()));
    } catch (const NotSaved& failure) {
      return Close(ClassStatus::NotWritten, NameOf(failure.File) + ": the report can't be written");
    } catch (const std::exception&) {
      return Close(ClassStatus::NotWritten, files_.Name() + ": the report can't be written");
    }
  }

 private:
  ClassStatus RunIn(const fs::path& place) {
    if (!RunModel(place)) return Close(ClassStatus::Interrupted, "interrupted, no report is written");
    const bool ended = RunAll(place);
    if (!ended && report_.Runs.empty()) return Close(ClassStatus::Interrupted, "interrupted, no report is written");
    report_.Made = QDateTime::currentDateTime().toString(Qt::ISODate);
    FindAlike();
    files_.Write(report_);
    if (ended) return Close(ClassStatus::ReportWritten, LastWords());
    const QString why =
        ranShort_ ? QLatin1String(NoProcess().what()) + QStringLiteral(" Ended") : QStringLiteral("interrupted");
    return Close(ranShort_ ? ClassStatus::NotWritten : ClassStatus::Interrupted,
                 why + QStringLiteral(" after %1 of %2 programs").arg(report_.Runs.size()).arg(report_.Wanted) +
                     (files_.HasPage() ? QStringLiteral("; the partial report is ") + files_.Name() : QString()));
  }

  ClassRunner::Plan PlanIn(const fs::path& folder) const {
    fs::create_directory(folder);
    ClassRunner::Plan plan{.Limits = limits_,
                           .Screen = settings_.Screen,
                           .Jobs = JobsOf(options_),
                           .Program = QCoreApplication::applicationFilePath(),
                           .Folder = folder};
    plan.Goals = task_.Goals;
    return plan;
  }

  /// Runs the teacher's own program, which the others are compared with. False if it was interrupted.
  bool RunModel(const fs::path& place) {
    if (task_.Goals.empty()) return true;
    if (!task_.HasModelProgram()) {
      if (IsBlank(QImage(NameOf(task_.Model)))) RefuseTask("the picture shows nothing, or is none");
      return true;
    }
    ClassRunner runner(PlanIn(place / "model"), {{task_.Model, {}}}, [](const PupilRun&, std::size_t) {});
    const std::vector<PupilRun> runs = runner.Run();
    if (runs.empty()) return false;
    CheckGoals(runs.front().Outcome);
    return true;
  }

  [[noreturn]] void RefuseTask(const QString& words) const {
    throw batch::UsageError("--task " + options_.Task + ": " + words.toStdString());
  }

  /// Fails if the model does not meet its own goals.
  void CheckGoals(const RunOutcome& outcome) const {
    const auto missed = std::ranges::find(outcome.Goals, false, &GoalOutcome::Met);
    if (missed == outcome.Goals.end()) return;
    const auto index = static_cast<std::size_t>(missed - outcome.Goals.begin());
    QString words = QStringLiteral("goal %1").arg(index + 1);
    if (!missed->Title.isEmpty()) words += QStringLiteral(", ") + Readable(missed->Title);
    words += QStringLiteral(": its program ");
    if (outcome.How != Result::Ended) RefuseTask(words + WordsOf(outcome, limits_));
    words += missed->Way == GoalWay::Texts ? QStringLiteral("prints nothing") : QStringLiteral("draws nothing");
    if (task_.Goals[index].Typed.isEmpty()) words += QStringLiteral("; say under \"## Goals\" what is typed");
    RefuseTask(words);
  }

  /// False if it was interrupted.
  bool RunAll(const fs::path& place) {
    std::optional<PartFile> records;
    if (!options_.Records.empty()) OpenRecords(records);
    ClassRunner::Plan plan = PlanIn(place / "runs");
    if (!task_.Goals.empty() && task_.HasModelProgram()) plan.ModelFolder = place / "model" / "0";
    if (!task_.Goals.empty() && !task_.HasModelProgram()) plan.ModelPicture = task_.Model;
    if (!options_.Folder.empty() && !options_.FollowLinks) plan.Within = FolderOf(options_.Folder);
    const std::size_t all = pupils_.size();
    ClassRunner runner(std::move(plan), std::move(pupils_), [&](const PupilRun& run, std::size_t done) {
      if (records) records->Add(run);
      progress_.Tell(done, all, EscapedName(run) + u' ' + WordsOf(run.Outcome, limits_));
    });
    report_.Runs = runner.Run();
    if (records) TakeRecords();
    ranShort_ = runner.RanShort();
    return !ranShort_ && !runner.WasInterrupted() && !Interruption::Came();
  }

  /// Those that are recorded already are not run again, if nothing has changed for them.
  void OpenRecords(std::optional<PartFile>& records) {
    const Fingerprint fingerprint(limits_, settings_.Screen, options_.FollowLinks, options_.Task);
    for (Pupil& pupil : pupils_) pupil.Fingerprint = fingerprint.Of(pupil);
    records.emplace(options_.Records, options_.Resume, Share{options_.Part, report_.Wanted, all_}, pupils_);
    if (records->Dropped() > 0) {
      progress_.Close(
          Filled("%1 %1{program has/programs have} changed, or the task, session or limits; %1{it runs/they "
                 "run} again",
                 {QString::number(records->Dropped())}));
    }
    std::erase_if(pupils_, [&records](const Pupil& pupil) { return records->Has(pupil.Program); });
  }

  void FindAlike() {
    for (const PupilRun& run : report_.Runs) alike_.Add(run);
    const auto link = [this](std::size_t index) {
      return PupilLink{PupilName(report_.Runs[index].Who), QStringLiteral("#p%1").arg(index + 1)};
    };
    for (const AlikePair& pair : alike_.Pairs())
      report_.Alike.push_back({link(pair.One), link(pair.Other), pair.Alike.Percent,
                               alike_.SharedLines(report_.Runs[pair.One], report_.Runs[pair.Other])});
  }

  static QString EscapedName(const PupilRun& run) { return Readable(PupilName(run.Who)); }

  /// A report of a run that was resumed is about all of it.
  void TakeRecords() {
    report_.Runs.clear();
    ForEachRun(options_.Records, [this](PupilRun run, std::streamoff) { report_.Runs.push_back(std::move(run)); });
    std::ranges::stable_sort(report_.Runs, {}, [](const PupilRun& run) { return run.Who.Program; });
  }

  QString LastWords() const {
    const auto ended =
        std::ranges::count(report_.Runs, Result::Ended, [](const PupilRun& run) { return run.Outcome.How; });
    return QStringLiteral("%1 of %2 programs ended by themselves; the report is %3")
        .arg(ended)
        .arg(report_.Runs.size())
        .arg(files_.Name());
  }

  ClassStatus Close(ClassStatus status, const QString& words) {
    progress_.Close(words);
    return status;
  }

  const ClassOptions& options_;
  const batch::Settings& settings_;
  RunLimits limits_;
  std::vector<Pupil> pupils_;
  /// How many programs there are, of which some may be left to others.
  std::size_t all_;
  AlikeSearch alike_;
  ReportFiles files_;
  Task task_;
  Report report_;
  bool ranShort_ = false;
  Progress progress_{std::cerr, Progress::StandardErrorIsTerminal()};
};

}  // namespace

QString TemplateOf(const ClassOptions& options) { return TextOfProgram(ContentOf("--template", options.Template)); }

ClassStatus RunClass(const Command& command, const std::string& version) {
  return command.IsMerge() ? MergeParts(command, version) : ClassRun(command, version).Run();
}

}  // namespace zerimo::classroom
