#include "web/page_services.h"

#include <algorithm>
#include <utility>

#include "batch/box_buttons.h"
#include "batch/json_line.h"
#include "batch/latin1.h"
#include "web/page_port.h"

namespace zerimo::web {

namespace {

using batch::JsonLine;

/// So often the page is asked in the time of a frame, unless more than `MostStepsPerLook` would run in between.
constexpr std::uint64_t LooksPerFrame = 8;
constexpr std::uint64_t MostStepsPerLook = 128;

/// What follows the plus sign.
std::string TextOf(const std::string& answer) {
  return answer.empty() ? std::string() : batch::FromUtf8(std::string_view(answer).substr(1));
}

}  // namespace

std::string PageServices::Ask(const std::string& question) {
  show_();
  const std::string answer = AskPage(question);
  LeaveIfStopped();
  return TextOf(answer);
}

Answer PageServices::MessageBox(const std::string& text, int style, const std::string& title) {
  const batch::BoxButtons& buttons = batch::ButtonsOf(style);
  std::vector<std::string> words;
  for (const Answer button : buttons.Buttons) words.emplace_back(batch::WordOf(button));
  const std::string chosen = Ask(JsonLine("box")
                                     .Text("text", text)
                                     .Text("title", title)
                                     .Texts("buttons", words)
                                     .Text("unasked", batch::WordOf(buttons.Unasked))
                                     .Finished());
  const auto found = std::find(words.begin(), words.end(), chosen);
  return found == words.end() ? buttons.Unasked : buttons.Buttons[static_cast<std::size_t>(found - words.begin())];
}

std::string PageServices::InputBox(const std::string& prompt, const std::string& title,
                                   const std::string& defaultAnswer) {
  return Ask(JsonLine("input").Text("text", prompt).Text("title", title).Text("value", defaultAnswer).Finished());
}

std::string PageServices::ShowOpen() {
  if (!offeredFile_.empty()) return std::exchange(offeredFile_, {});
  return Ask(JsonLine("open").Text("title", "Open").Finished());
}

std::string PageServices::ShowSave(const std::string& text) {
  return Ask(JsonLine("save").Text("title", "Save As").Text("text", text).Finished());
}

void PageServices::Sleep(std::int32_t milliseconds) {
  if (milliseconds < 0) return;
  show_();
  HoldFor(milliseconds);
  LeaveIfStopped();
}

void PageServices::Beep() { TellPage("[" + JsonLine("beep").Finished() + "]"); }

std::string PageServices::TimeOfDay() { return batch::FromUtf8(PageTimeOfDay()); }

void PageWatch::Begin() {
  // One that was left over from the last handler would delay this one.
  TakeFrame();
  nextFrame_ = 0;
  nextLook_ = 0;
  isStepped_ = ChosenPause() != 0;
}

void PageWatch::LookAtStep() {
  if (isStepped_) isStepped_ = step_();
  LookForFrame();
  nextLook_ = stepsTaken_ + (isStepped_ ? 1 : stepsPerLook_);
}

void PageWatch::Tick() {
  if (++ticksTaken_ < nextTickLook_) return;
  LookForFrame();
  nextTickLook_ = ticksTaken_ + stepsPerLook_;
}

void PageWatch::LookForFrame() {
  if (!TakeFrame()) return;
  const std::uint64_t taken = stepsTaken_ + ticksTaken_;
  stepsPerLook_ = std::clamp<std::uint64_t>((taken - takenAtFrame_) / LooksPerFrame, 1, MostStepsPerLook);
  takenAtFrame_ = taken;
  LeaveIfStopped();
  isStepped_ = ChosenPause() != 0;
  const double start = PageClock();
  if (start < nextFrame_) return;
  show_();
  const double end = PageClock();
  nextFrame_ = end + (ShareOfShowing - 1) * (end - start);
}

bool PagePace::Step() {
  const double pause = ChosenPause();
  LeaveIfStopped();
  if (pause == 0) {
    End();
    return false;
  }
  runningLine_.Step();
  if (!runningLine_.IsWritten()) return true;
  show_();
  Tell();
  HoldLine(pause);
  LeaveIfStopped();
  return true;
}

void PagePace::End() {
  if (runningLine_.Number() == 0) return;
  runningLine_.Clear();
  Tell();
}

void PagePace::Tell() {
  TellPage(
      "[" +
      batch::JsonLine("line").Text("words", runningLine_.Words()).Number("number", runningLine_.Number()).Finished() +
      "]");
}

}  // namespace zerimo::web
