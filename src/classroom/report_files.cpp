#include "classroom/report_files.h"

#include <QStringList>
#include <algorithm>
#include <set>

#include "base/failure.h"
#include "batch/errors.h"
#include "batch/memory_limit.h"
#include "classroom/class_folder.h"
#include "classroom/page_html.h"
#include "classroom/readable.h"
#include "classroom/record.h"
#include "classroom/report_page.h"
#include "files/disk_files.h"
#include "files/program_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

fs::path SummaryFileOf(fs::path report) { return report.replace_extension(".json"); }

fs::path WritablePlace(const char* option, const std::string& name) {
  std::error_code error;
  fs::path file = fs::absolute(name, error);
  const fs::path folder = file.parent_path();
  const auto isFree = [&error](const fs::path& place) {
    const fs::file_status status = fs::status(place, error);
    return !fs::exists(status) || fs::is_regular_file(status);
  };
  const bool isPlace =
      !error && fs::is_directory(folder, error) && isFree(file) && isFree(SummaryFileOf(file)) && CanWriteInto(folder);
  if (!isPlace) throw batch::UsageError(std::string(option) + " " + name + ": no file can be written there");
  RemoveLeftovers(folder);
  return file;
}

/// Hours of work may be in records that are there already.
void KeepRecords(const ClassOptions& options) {
  std::error_code error;
  const fs::path file = WritablePlace("--jsonl", options.Records);
  const bool hasSome = fs::is_regular_file(file, error) && fs::file_size(file, error) > 0;
  if (hasSome && !options.Resume)
    throw batch::UsageError("--jsonl " + options.Records +
                            ": the file is there already; go on with --resume, or give another name");
}

/// Makes a file name from a pupil's name, which may hold any character.
std::string FileNameOf(const PupilRun& run, std::set<std::string>& taken) {
  QString name = PupilName(run.Who);
  if (ProgramFiles::IsProgramName(name.toStdString())) name.chop(4);
  for (QChar& character : name) {
    const bool isPlain = character.isLetterOrNumber() || character == u'-' || character == u'_' || character == u' ';
    if (!isPlain) character = u'_';
  }
  const std::string plain = name.left(80).toStdString();
  std::string file = plain;
  for (int number = 2; !taken.insert(file).second; ++number) file = plain + "-" + std::to_string(number);
  return file + ".html";
}

void Save(const fs::path& file, const QByteArray& bytes) {
  if (!SkipOnFailure([&] { WriteBeside(file, bytes.toStdString()); })) throw NotSaved(file);
}

/// The limits of a report that this build can enforce.
RunLimits LimitsOf(const Report& report) {
  RunLimits limits = report.Limits.value_or(RunLimits());
  if (!batch::MemoryLimit::IsThere()) limits.Memory = 0;
  return limits;
}

QString Cell(const QString& text) {
  QString cell = Readable(text).replace(u'"', QStringLiteral("\"\""));
  const bool isFormula = !cell.isEmpty() && QStringLiteral("=+-@").contains(cell.front());
  return u'"' + (isFormula ? QStringLiteral("'") : QString()) + cell + u'"';
}

QByteArray Row(const QStringList& texts) {
  QStringList cells;
  for (const QString& text : texts) cells.append(Cell(text));
  return (cells.join(u',') + QStringLiteral("\r\n")).toUtf8();
}

}  // namespace

QByteArray SummaryOf(const Report& report) {
  Json pupils = Json::array();
  for (const PupilRun& run : report.Runs) pupils.push_back(JsonOf(run));
  return QByteArray::fromStdString(Indented({{"format", 1},
                                             {"version", 2},
                                             {"program", "zerimo-batch " + report.Version.toStdString()},
                                             {"made", ValueOf(report.Made)},
                                             {"folder", ValueOf(report.Folder)},
                                             {"limits", JsonOf(LimitsOf(report))},
                                             {"partial", report.Runs.size() < report.Wanted},
                                             {"wanted", std::max(report.Wanted, report.Runs.size())},
                                             {"pupils", pupils}}));
}

ReportFiles::ReportFiles(const ClassOptions& options) : options_(options) {
  if (!options.Report.empty()) page_ = WritablePlace("--out", options.Report);
  if (!options.Marks.empty()) WritablePlace("--csv", options.Marks);
  if (!options.Records.empty()) KeepRecords(options);
  std::error_code error;
  if (!options.Pupils.empty()) fs::create_directories(options.Pupils, error);
  if (!options.Pupils.empty() && !CanWriteInto(options.Pupils))
    throw batch::UsageError("--pupils " + options.Pupils + ": no file can be written there");
}

QString ReportFiles::Name() const { return HasPage() ? NameOf(page_) : QString::fromStdString(options_.Records); }

void ReportFiles::Write(const Report& report) const {
  if (HasPage()) {
    Save(page_, PageOf(report, PictureSource(PicturesBeside(page_))));
    Save(SummaryFileOf(page_), SummaryOf(report));
  }
  if (!options_.Marks.empty()) {
    QByteArray marks = MarksHead();
    for (const PupilRun& run : report.Runs) marks += MarksOf(run);
    Save(fs::absolute(options_.Marks), marks);
  }
  if (!options_.Pupils.empty()) WritePupils(report);
}

fs::path ReportFiles::PicturesBeside(fs::path page) { return page.replace_extension(PicturesEnding); }

void ReportFiles::WritePupils(const Report& report) const {
  std::set<std::string> taken;
  for (const PupilRun& run : report.Runs) {
    const std::string name = FileNameOf(run, taken);
    Save(fs::absolute(options_.Pupils) / std::u8string(name.begin(), name.end()), PageOfPupil(report, run));
  }
}

QByteArray MarksHead() {
  return Row({"file", "name", "result", "points", "most points", "goals met", "goals", "findings", "seconds"});
}

QByteArray MarksOf(const PupilRun& run) {
  return Row({NameOf(PlaceOf(run.Who)), PupilName(run.Who), WordOf(run.Outcome.How), QString::number(PointsOf(run)),
              QString::number(MostPointsOf(run)), QString::number(run.GoalsMet()),
              QString::number(run.Outcome.Goals.size()), QString::number(run.Outcome.Findings.size()),
              QString::number(run.Seconds, 'f', 1)});
}

}  // namespace zerimo::classroom
