#include "classroom/run_findings.h"

#include <algorithm>

namespace zerimo::classroom {

namespace {

/// A drawing that is nearly all outside the picture is a mistake; hills that rise from below it are not.
constexpr double NearlyAll = 0.9;

/// The part of the title picture that hides nothing, in fractions of its height.
constexpr double TitleIsClearFrom = 0.2;
constexpr double TitleIsClearTo = 0.74;

constexpr const char* FenceWords = "outside of the Fence";
constexpr const char* MissingWords = "Required Paramiter Missing After ";

void FindInBoxes(const std::vector<ShownBox>& boxes, std::vector<Finding>& findings) {
  for (const ShownBox& box : boxes) {
    if (box.Text.contains(FenceWords)) findings.push_back({Mistake::FenceHit, 0, {}});
    const qsizetype place = box.Text.indexOf(MissingWords);
    if (place >= 0)
      findings.push_back(
          {Mistake::InputAsked, 0, {box.Text.mid(place + QLatin1String(MissingWords).size()).section(u' ', 0, 0)}});
  }
}

}  // namespace

void FindInRun(SessionRun& run, int programLine, std::vector<Finding>& findings) {
  const Said told = run.Told();
  const DrawingRecorder& recorder = run.Recorder();
  const bool isSilent = told.Printed.isEmpty() && told.Boxes.empty();
  const bool showsSlides = !run.form1.files.pictures.SlideBaseName.empty();
  if (!recorder.HasDrawn() && isSilent && !showsSlides) {
    const bool isUp = run.form1.turtle.PenState == PenPosition::Up;
    findings.push_back({isUp ? Mistake::NothingWithPenUp : Mistake::NothingDrawn, 0, {}});
  }
  const bool isUnderTheTitle = recorder.LeavesBand(run.form1.Picture1, TitleIsClearFrom, TitleIsClearTo);
  if (isUnderTheTitle && run.form1.controls.Image1.Visible()) findings.push_back({Mistake::UnderTheTitle, 0, {}});
  if (recorder.PartOutside(run.form1.Picture1) > NearlyAll) findings.push_back({Mistake::OutsideThePicture, 0, {}});
  if (recorder.WasWiped()) findings.push_back({Mistake::PictureWiped, 0, {}});
  const RunOutcome& went = run.Went();
  if (went.How == Result::Stopped && went.By != "memory")
    findings.push_back({Mistake::ForEver, programLine, {went.Where.Statement}});
  std::vector<Finding> inBoxes;
  FindInBoxes(told.Boxes, inBoxes);
  for (const Finding& finding : inBoxes) {
    if (std::ranges::find(findings, finding) == findings.end()) findings.push_back(finding);
  }
}

}  // namespace zerimo::classroom
