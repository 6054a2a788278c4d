#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "classroom/order.h"
#include "classroom/program_source.h"
#include "classroom/session_run.h"

namespace zerimo::classroom {

/// Runs one pupil's program in this process, which does nothing else. The current folder is the run's folder.
class PupilSession {
 public:
  /// Gets the outcome as far as it is known. That of a program that has not come to its end is a crash: if the process
  /// dies, it has reported what it could.
  using Teller = std::function<void(const RunOutcome&)>;

  PupilSession(const Order& order, Teller tell);

  /// Runs the program, then its goals, and writes transcript, picture and what the goals need. Hands the outcome
  /// over before the program, after it, and after each goal.
  void Run();

 private:
  /// Fails with `Reason`.
  void ReadFiles();
  void PlaceProgram();
  Play MainPlay();
  Play PlayOf(const Goal& goal) const;
  /// Loads the program and calls the procedure that starts it.
  Play PlayWithoutSession(QStringList& notes) const;
  /// A session's text in which the lines that begin with PROGRAM call the program's main procedure, or, without inputs,
  /// one that needs none.
  std::string WithProcedure(const std::string& text) const;
  /// Plays a session, or takes the last one if it was the same: what ends by a limit need not take its time twice.
  SessionRun& Played(const Play& play, const char* transcript);
  void RunMain();
  /// Takes how a session ended.
  void TakeEnd(const RunOutcome& outcome);
  /// Calls with other inputs than a procedure takes.
  void FindInTyped(const Play& play);
  /// Adds those that are not there yet.
  void TakeFindings(const Findings& findings);
  /// Adds what the store made of the program's lines, and what was seen on them.
  void MatchSource(SessionRun& run);
  void RunGoal(std::size_t index);
  void WritePicture(SessionRun& run, const std::string& file);

  const Order& order_;
  Teller tell_;
  std::string program_;
  std::string session_;
  Findings possibleZeros_;
  /// Nothing if the program is empty or one line.
  std::optional<ProgramOutline> outline_;
  /// What `LOAD` calls the program.
  std::string loadName_;
  RunOutcome outcome_;
  Play lastPlay_;
  std::unique_ptr<SessionRun> lastRun_;
};

/// The process of one run: reads its order in the current folder, carries it out and writes the outcome. Returns the
/// exit status of the process.
int RunPupil();

}  // namespace zerimo::classroom
