#pragma once

#include "classroom/report.h"

namespace zerimo::classroom {

/// A text that does harm wherever it is not escaped.
inline const QString Hostile =
    QStringLiteral("</pre><script>alert(1)</script><img src=x onerror='a()'>\" onload=\"&lt;\u202e\x1b[2J");

/// A report with that text in every place that a pupil can reach.
inline Report HostileReport() {
  PupilRun run;
  run.Who = {"/class/" + Hostile.toStdString().substr(6, 30) + "\"'&\n\xFF.ZRM", "/class/<b>\".session"};
  run.Outcome.How = Result::Failed;
  run.Outcome.By = Hostile;
  run.Outcome.Message = Hostile;
  run.Outcome.Where = {1, Hostile, Hostile, Hostile};
  run.Outcome.Typed = {Hostile};
  run.Outcome.Notes = {Hostile};
  run.Told.Lines = {Hostile, Hostile};
  run.Told.Boxes = {{"box", Hostile, Hostile, Hostile, Hostile}, {"input", Hostile, Hostile, {}, Hostile}};
  GoalOutcome goal{Hostile, GoalWay::Texts};
  goal.Wanted = goal.Printed = {Hostile, Hostile};
  goal.Printed[1] += "!";
  run.Outcome.Goals = {goal};
  Report report;
  report.Folder = Hostile;
  report.Made = "2026-01-02T03:04:05";
  report.Version = "1.2.3";
  report.Limits = {10, 1000, 64};
  report.Runs = {run, run};
  report.Runs[1].Who.Session.clear();
  return report;
}

}  // namespace zerimo::classroom
