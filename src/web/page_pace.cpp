#include "web/page_pace.h"

#include "batch/json_line.h"
#include "web/page_port.h"

namespace zerimo::web {

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
