#pragma once

#include <QString>
#include <QStringList>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "classroom/drawings/comparison.h"
#include "classroom/findings/mistakes.h"

namespace zerimo::classroom {

/// One program of a class folder.
struct Pupil {
  std::filesystem::path Program;
  /// The session beside it, or empty.
  std::filesystem::path Session;
  /// What the report calls the pupil; the program's place if it is empty.
  QString Name = {};
  /// Where the program is in its class folder, or as the list says it; the name of the file if it is empty.
  std::filesystem::path Place = {};
  /// A hash of all that its run depends on; empty if nobody asks.
  std::string Fingerprint = {};
};

/// A program's place as the reader of a report knows it.
inline std::filesystem::path PlaceOf(const Pupil& pupil) {
  return pupil.Place.empty() ? pupil.Program.filename() : pupil.Place;
}

/// How a run went.
enum class Result {
  /// The session came to its end, or the program ended the system.
  Ended,
  /// By a limit.
  Stopped,
  /// By a failure that nothing caught.
  Failed,
  /// The session itself is wrong.
  Refused,
  /// There was nothing to run.
  NotRun,
  /// The process ended without a word.
  Crashed,
  /// The pupil has a folder, but no program is in it.
  NoProgram,
};
inline constexpr std::size_t ResultCount = 7;

/// The word of a result: "ended", "stopped", "failed", "refused", "not run", "crashed", "no program".
QString WordOf(Result result);

/// Where a run was when it was stopped. What is not known is empty or 0.
struct StopPlace {
  /// The line of the session or of what was typed for it, from 1.
  int Line = 0;
  QString LineText;
  QString Procedure;
  QString Statement;
  /// The line of the program's file, from 1.
  int ProgramLine = 0;
};

/// A line of a program's file.
struct SourceLine {
  QString Text;
  /// The lines of the store made from it, if they differ from it.
  std::optional<QStringList> Stored = {};
};

/// In which way a drawing is compared with the goal's.
enum class GoalWay { Shapes, Pixels, Texts };

/// The result of one goal.
struct GoalOutcome {
  QString Title;
  GoalWay Way = GoalWay::Shapes;
  bool Met = false;
  /// How much of it is alike, from 0 to 100.
  double Percent = 0;
  double Points = 1;
  std::optional<Placement> Placed = {};
  /// What alone is wrong with strokes that are where they should be.
  std::vector<StrokeRule> Broken = {};
  /// Of texts: the first lines that were wanted, and the first ones that were printed.
  QStringList Wanted = {};
  QStringList Printed = {};
  bool TextsAreCut = false;
};

/// What a run reports about itself.
struct RunOutcome {
  Result How = Result::Crashed;
  /// `finished`, `BYE`, `QUIT`, `Abort` or `close`; `seconds`, `steps` or `memory`; otherwise empty.
  QString By;
  QString Message;
  StopPlace Where;
  /// The lines that were typed for the pupil, if there was no session.
  QStringList Typed;
  /// What else a teacher may want to know.
  QStringList Notes;
  /// What is suspicious in the program and its run.
  std::vector<Finding> Findings = {};
  std::vector<SourceLine> Source = {};
  bool SourceIsCut = false;
  std::vector<GoalOutcome> Goals = {};
};

/// A message box, a question or a file window, as it was answered.
struct ShownBox {
  /// `box`, `input`, `open` or `save`.
  QString Kind;
  QString Title;
  QString Text;
  /// The words of the buttons; only boxes have them.
  QString Buttons;
  QString Answer;
};

/// What a run said, as far as it is kept.
struct Said {
  QStringList Lines;
  bool LinesAreCut = false;
  std::vector<ShownBox> Boxes;
  bool BoxesAreCut = false;
  /// The lines that the program printed, without those that were typed.
  QStringList Printed = {};
};

/// The limits of a run; 0 is no limit.
struct RunLimits {
  double Seconds = 0;
  quint64 Steps = 0;
  /// Megabytes on top of what the system itself needs.
  int Memory = 0;

  bool operator==(const RunLimits&) const = default;
};

/// All about one pupil's run.
struct PupilRun {
  Pupil Who;
  RunLimits Limits;
  RunOutcome Outcome;
  Said Told;
  /// Wall-clock time of the process.
  double Seconds = 0;
  /// The picture as a PNG file, or empty if there is none. Those of the goals are beside it.
  std::filesystem::path Picture;

  std::size_t GoalsMet() const {
    return static_cast<std::size_t>(std::ranges::count_if(Outcome.Goals, &GoalOutcome::Met));
  }
  /// Whether the run needs a teacher's eye.
  bool IsSuspicious() const {
    return Outcome.How != Result::Ended || !Outcome.Findings.empty() || !Outcome.Notes.isEmpty() ||
           GoalsMet() < Outcome.Goals.size();
  }
};

}  // namespace zerimo::classroom
