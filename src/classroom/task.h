#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <string>
#include <vector>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// One thing that a program should do.
struct Goal {
  /// What is typed after the program is loaded; empty for the call that a program without a session gets.
  QStringList Typed = {};
  /// What the teacher calls it, or empty.
  QString Words = {};
  GoalWay Way = GoalWay::Shapes;
  ShapeRules Shapes = {};
  /// The overlap of pixels that is enough, in per cent.
  double Enough = 95;
  double Points = 1;

  /// "A large star (STAR 50)"; empty if it has neither words nor lines.
  QString Title() const;
  /// The outcome for a program that never got to this goal.
  GoalOutcome NotMet() const { return {Title(), Way, false, 0, Points}; }
};

/// What a class was asked for.
struct Task {
  QString Title;
  /// What the pupils were told, as written in TASK.md.
  QString Words;
  /// The teacher's program, or a picture; empty if there are no goals.
  std::filesystem::path Model;
  std::vector<Goal> Goals;

  bool HasModelProgram() const;
};

/// A task from its folder: TASK.md, and GOAL.ZRM or GOAL with the ending of a picture. A place that is a file is a
/// model alone. Fails with `UsageError`, which names the line that is not understood.
Task ReadTask(const std::filesystem::path& place);

/// The goals of the section "Goals" (or "Ziele") of TASK.md: "- A large star, `STAR 50`: pixels 90 %, 2 points". Fails
/// with `UsageError`.
std::vector<Goal> GoalsIn(const QString& taskText);

}  // namespace zerimo::classroom
