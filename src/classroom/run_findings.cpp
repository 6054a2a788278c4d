#include "classroom/run_findings.h"

#include <algorithm>
#include <cmath>

#include "classroom/findings/listing.h"
#include "classroom/readable.h"

namespace zerimo::classroom {

namespace {

/// A line may end a pixel or two outside the picture.
constexpr double MostOutside = 0.01;
/// A bubble or two may leave the picture.
constexpr double MostCutOff = 0.05;

/// The part of the title picture that hides nothing, in fractions of its height.
constexpr double TitleIsClearFrom = 0.2;
constexpr double TitleIsClearTo = 0.74;

constexpr const char* FenceWords = "outside of the Fence";

/// Adds a finding about the run as a whole, once.
void Add(std::vector<Finding>& findings, Mistake what, const QStringList& details = {}) {
  const Finding finding{what, 0, details};
  if (std::ranges::find(findings, finding) == findings.end()) findings.push_back(finding);
}

bool Has(const std::vector<Finding>& findings, Mistake what, const QString& word) {
  return std::ranges::any_of(
      findings, [&](const Finding& finding) { return finding.What == what && finding.Details.value(0) == word; });
}

void FindInBoxes(const std::vector<ShownBox>& boxes, std::vector<Finding>& findings) {
  for (const ShownBox& box : boxes) {
    if (box.Text.contains(FenceWords)) Add(findings, Mistake::FenceHit);
    const qsizetype place = box.Text.indexOf(MissingInputWords);
    if (place < 0) continue;
    const QString word = box.Text.mid(place + QLatin1String(MissingInputWords).size()).section(u' ', 0, 0);
    if (!Has(findings, Mistake::MissingInputs, word)) Add(findings, Mistake::InputAsked, {word});
  }
}

void FindOutside(SessionRun& run, std::vector<Finding>& findings) {
  const Surface& surface = run.form1.Picture1;
  const double outside = run.Recorder().PartOutside(surface);
  const double cutOff = std::max(run.Recorder().PartCutOff(surface), run.Recorder().PartWhollyOutside(surface));
  if (outside > MostOutside || cutOff > MostCutOff)
    findings.push_back({Mistake::OutsideThePicture, 0, {QString::number(std::ceil(100 * std::max(outside, cutOff)))}});
}

void FindInPicture(SessionRun& run, bool hasBegun, std::vector<Finding>& findings) {
  const Said told = run.Told();
  const DrawingRecorder& recorder = run.Recorder();
  const bool isSilent = told.Printed.isEmpty() && told.Boxes.empty();
  const bool showsSlides = !run.form1.files.pictures.SlideBaseName.empty();
  if (hasBegun && !recorder.HasDrawn() && isSilent && !showsSlides) {
    const bool isUp = run.form1.turtle.PenState == PenPosition::Up;
    Add(findings, isUp ? Mistake::NothingWithPenUp : Mistake::NothingDrawn);
  }
  const bool isLeft = !recorder.IsBlank() || recorder.WasWiped();
  if (recorder.HasDrawn() && !isLeft && isSilent && run.Outcome().How == Result::Ended)
    Add(findings, Mistake::NothingLeft);
  const bool isUnderTheTitle = recorder.LeavesBand(run.form1.Picture1, TitleIsClearFrom, TitleIsClearTo);
  if (isUnderTheTitle && run.form1.controls.Image1.Visible()) Add(findings, Mistake::UnderTheTitle);
  FindOutside(run, findings);
  if (recorder.WasWiped()) Add(findings, Mistake::PictureWiped);
}

/// A program may have loaded procedures that are there already.
void FindInStore(const Store& store, std::vector<Finding>& findings) {
  QStringList names;
  for (int number = 1; number <= Store::LineCount && !store.Line(number).empty(); ++number) {
    const QString line = FromLatin1(store.Line(number));
    if (!IsOneOf<StmtTo>(KnownWord(line.section(u' ', 0, 0)))) continue;
    const QString name = line.section(u' ', 1, 1);
    if (names.contains(name) && !Has(findings, Mistake::DuplicateProcedure, name))
      Add(findings, Mistake::LoadedTwice, {name});
    names.append(name);
  }
}

/// Whether a folder has another file of a name, whatever its ending.
bool HasOther(const std::filesystem::path& own, const QString& name) {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(own.parent_path(), error)) {
    const QString stem = QString::fromStdU16String(entry.path().stem().u16string());
    if (entry.path() != own && entry.is_regular_file(error) && stem.compare(name, Qt::CaseInsensitive) == 0)
      return true;
  }
  return false;
}

}  // namespace

void FindLoaded(const QString& program, const std::filesystem::path& file, bool isShared,
                std::vector<Finding>& findings) {
  const Listing listing(program);
  const bool saves =
      std::ranges::any_of(listing.Statements, [](const Statement& each) { return each.Is<"SAVEPICTURE">(); });
  for (const Statement& statement : listing.Statements) {
    const QString name = statement.Rest().section(u'.', 0, 0);
    if (!statement.Is<"LOAD", "LOADPICTURE">() || name.isEmpty()) continue;
    const bool isOther = HasOther(file, name);
    const bool isOwn = name.compare(NameOf(file.stem()), Qt::CaseInsensitive) == 0;
    const bool mayBeThere = isOther || isOwn || saves || name.contains(u'/') || name.contains(u'\\');
    if (isOther && isShared) findings.push_back({Mistake::LoadsAnother, statement.Line, {statement.Text}});
    if (!mayBeThere) findings.push_back({Mistake::DeadWord, statement.Line, {listing.AsWritten(statement.Text)}});
  }
}

void FindInRun(SessionRun& run, int programLine, bool hasBegun, std::vector<Finding>& findings) {
  FindInPicture(run, hasBegun, findings);
  FindInStore(run.form1.interpreter.store, findings);
  const RunOutcome& outcome = run.Outcome();
  if (outcome.How == Result::Stopped && outcome.By != "memory")
    findings.push_back({Mistake::ForEver, programLine, {outcome.Where.Statement.trimmed()}});
  FindInBoxes(run.Told().Boxes, findings);
}

}  // namespace zerimo::classroom
