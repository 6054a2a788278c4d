#include <QDateTime>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "batch/errors.h"
#include "classroom/class_run.h"
#include "classroom/page_html.h"
#include "classroom/parts.h"
#include "classroom/progress.h"
#include "classroom/readable.h"
#include "classroom/report_files.h"
#include "classroom/report_page.h"
#include "classroom/words.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// Programs on one page, which is also how many are in memory at a time.
constexpr std::size_t ProgramsOnPage = 100;

/// Writes a report of any number of runs: an index, and pages beside it.
class Merge {
 public:
  Merge(const Command& command, const std::string& version)
      : options_(command.classOptions), files_(options_), alike_(TemplateOf(options_)) {
    report_.Folder = NameOf(files_.Page().stem());
    report_.Version = QString::fromStdString(version);
    report_.Made = QDateTime::currentDateTime().toString(Qt::ISODate);
    report_.Words = options_.Words;
    if (!options_.Marks.empty()) marks_.emplace(options_.Marks);
    AddMarks(MarksHead());
  }

  QString Run() {
    RefuseRepeated();
    for (const std::string& part : options_.Merged) TakePart(part);
    FindMissing();
    WritePage();
    if (marks_) marks_->Save();
    FindAlike();
    report_.Wanted = wanted_;
    WriteBeside(files_.Page(), IndexPage(report_, entries_).toStdString());
    return LastWords();
  }

 private:
  /// Where a run is in its part.
  struct PartPlace {
    const std::string* Part;
    std::streamoff Offset;
  };

  void RefuseRepeated() const {
    std::set<fs::path> parts;
    for (const std::string& part : options_.Merged) {
      std::error_code error;
      if (!parts.insert(fs::weakly_canonical(part, error)).second)
        throw batch::UsageError("--merge " + part + ": the part is named twice");
    }
  }

  void TakePart(const std::string& part) {
    const std::size_t before = places_.size();
    const std::optional<Share> share = ForEachRun(part, [this, &part](PupilRun run, std::streamoff place) {
      places_.push_back({&part, place});
      Take(std::move(run));
    });
    if (!share) throw batch::UsageError("--merge " + part + ": the file can't be read");
    const std::size_t programs = places_.size() - before;
    wanted_ += share->Wanted;
    if (programs < share->Wanted || programs == 0) report_.Partial.push_back({NameOf(part), programs, share->Wanted});
    if (share->Part.Count > 1) given_[{share->Part.Count, share->All}].insert(share->Part.Index);
  }

  /// Finds the parts that have programs and are not among the given files.
  void FindMissing() {
    for (const auto& [whole, indexes] : given_) {
      const auto& [count, all] = whole;
      MissingParts missing{{}, count};
      // Parts beyond the last program have none.
      for (int index = 1; index <= count && static_cast<std::size_t>(index) <= all; ++index) {
        if (indexes.contains(index)) continue;
        missing.Indexes.push_back(index);
        wanted_ += ProgramsOf({index, count}, all);
      }
      if (!missing.Indexes.empty()) report_.Missing.push_back(std::move(missing));
    }
  }

  void Take(PupilRun run) {
    if (places_.size() == 1) report_.Limits = run.Limits;
    if (report_.Limits != run.Limits) report_.Limits.reset();
    alike_.Add(run);
    AddMarks(MarksOf(run));
    report_.Runs.push_back(std::move(run));
    if (report_.Runs.size() == ProgramsOnPage) WritePage();
  }

  QString LastWords() const {
    const QString name = QString::fromStdString(options_.Report);
    if (!report_.IsOfTornParts()) return QStringLiteral("%1 programs; the report is %2").arg(places_.size()).arg(name);
    QString words = QStringLiteral("%1 of %2 programs; ").arg(places_.size()).arg(wanted_);
    for (const MissingParts& missing : report_.Missing)
      words += Filled("%1{part/parts} %2 of %3 %1{is/are} missing; ", ValuesOf(missing));
    return words + QStringLiteral("the partial report is ") + name;
  }

  void AddMarks(const QByteArray& lines) {
    if (marks_) marks_->sputn(lines.constData(), lines.size());
  }

  std::string NameOfPage(std::size_t page) const {
    return files_.Page().stem().string() + "-" + std::to_string(page + 1) + ".html";
  }

  PupilLink LinkTo(std::size_t index, const PupilRun& run) const {
    return {PupilName(run.Who), QString::fromStdString(NameOfPage(index / ProgramsOnPage)) +
                                    QStringLiteral("#p%1").arg(index % ProgramsOnPage + 1)};
  }

  void FindAlike() {
    for (const AlikePair& pair : alike_.Pairs()) {
      const std::optional<PupilRun> one = RunAt(*places_[pair.One].Part, places_[pair.One].Offset);
      const std::optional<PupilRun> other = RunAt(*places_[pair.Other].Part, places_[pair.Other].Offset);
      if (!one || !other) continue;
      report_.Alike.push_back(
          {LinkTo(pair.One, *one), LinkTo(pair.Other, *other), pair.Alike.Percent, alike_.SharedLines(*one, *other)});
    }
  }

  void WritePage() {
    if (report_.Runs.empty()) return;
    const std::string name = NameOfPage(entries_.size());
    IndexEntry entry{QString::fromStdString(name),
                     PupilName(report_.Runs.front().Who),
                     PupilName(report_.Runs.back().Who),
                     report_.Runs.size(),
                     0,
                     0};
    for (const PupilRun& run : report_.Runs) {
      entry.Ended += run.Outcome.How == Result::Ended ? 1 : 0;
      entry.Suspicious += run.IsSuspicious() ? 1 : 0;
    }
    const fs::path page = files_.Page().parent_path() / name;
    WriteBeside(page, PageOf(report_, PictureSource(ReportFiles::PicturesBeside(page), 0)).toStdString());
    entries_.push_back(std::move(entry));
    report_.Runs.clear();
  }

  const ClassOptions& options_;
  ReportFiles files_;
  Report report_;
  std::optional<FileToSave> marks_;
  std::vector<IndexEntry> entries_;
  AlikeSearch alike_;
  /// Where each run is found, in the order of the runs.
  std::vector<PartPlace> places_;
  /// How many programs the parts are to have.
  std::size_t wanted_ = 0;
  /// The parts that were given of each class, by the number of its parts and programs.
  std::map<std::pair<int, std::size_t>, std::set<int>> given_;
};

}  // namespace

ClassStatus MergeParts(const Command& command, const std::string& version) {
  Progress progress(std::cerr, Progress::StandardErrorIsTerminal());
  try {
    progress.Close(Merge(command, version).Run());
    return ClassStatus::ReportWritten;
  } catch (const batch::UsageError&) {
    throw;
  } catch (const std::exception&) {
    progress.Close(QString::fromStdString(command.classOptions.Report) + ": the report can't be written");
    return ClassStatus::NotWritten;
  }
}

}  // namespace zerimo::classroom
