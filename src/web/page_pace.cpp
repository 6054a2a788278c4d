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
  line_.Step();
  show_();
  Tell();
  HoldLine(pause);
  LeaveIfStopped();
  return true;
}

void PagePace::End() {
  if (line_.Number() == 0) return;
  line_.Clear();
  Tell();
}

void PagePace::Tell() {
  TellPage("[" + batch::JsonLine("line").Text("words", line_.Words()).Number("number", line_.Number()).Finished() +
           "]");
}

}  // namespace zerimo::web
