#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "batch/batch_services.h"
#include "batch/batch_watch.h"
#include "batch/journal.h"
#include "batch/session_script.h"
#include "batch/settings.h"
#include "console/form1.h"

namespace zerimo::batch {

/// How a session ended; the numbers are the exit statuses.
enum class Ending { Over = 0, Refused = 1, Failed = 2, Stopped = 3 };

/// The result of a session.
struct Outcome {
  Ending How = Ending::Over;
  /// The message of a failure, a limit or a mistake in the session; empty if all went well.
  std::string Message;
  /// The line of the session to which the message belongs; 0 for the start of the system.
  int Line = 0;
  /// What ended or stopped it, as in the last event of the transcript.
  std::string By = {};
};

/// Writes the surface as a picture file, named by single-byte text. An exception says what went wrong.
using PictureWriter = std::function<void(const Surface& surface, const std::string& file)>;

/// One session: the whole system with its controls in memory, the events of a script delivered to it, and a journal of
/// what happens. Runs once.
class BatchSession {
 public:
  BatchSession(const Settings& settings, Canvas& canvas, Journal& journal, PictureWriter pictureWriter = {},
               const Disk& disk = Disk());
  BatchSession(const BatchSession&) = delete;
  BatchSession& operator=(const BatchSession&) = delete;

  /// Reads a session in UTF-8 and checks all of it. Fails with `SessionError`.
  Script Read(std::string_view utf8);

  /// Has a function called before each line that the interpreter runs.
  void BeforeEachLine(std::function<void()> look) noexcept { watch_.OnStep = std::move(look); }

  /// Starts the system and carries out the script.
  Outcome Run(const Script& script);

  /// Reads and runs; a mistake in the session gives an outcome too.
  Outcome Run(std::string_view utf8);

 private:
  Outcome RunToTheEnd(const Script& script);
  void RunSteps(const Script& script);

  void Do(const action::TypeLine& act);
  void Do(const action::EnterRow& act);
  void Do(const action::SetRow& act);
  void Do(const action::TypeOver& act);
  void Do(const action::PressKey& act);
  void Do(const action::Click& act);
  void Do(const action::MoveMouse& act);
  void Do(const action::PressMouse& act);
  void Do(const action::Drop& act);
  void Do(const action::Scroll& act);
  void Do(const action::SelectEntry& act);
  void Do(const action::Tick& act);
  void Do(const action::SetTime& act);
  void Do(const action::AnswerBox& act);
  void Do(const action::AnswerInput& act);
  void Do(const action::AnswerDialog& act);
  void Do(const action::Trace& act);
  void Do(const action::Dump& act);
  void Do(const action::DumpControl& act);
  void Do(const action::WritePicture& act);
  void Do(const action::CloseWindow& act);

  /// The row that has the focus, or row 0.
  int RowWithFocus();
  void PressEnter(int row);
  /// Delivers one event, and then the tick of the one-shot timer if the event has switched it on.
  void Deliver(const std::function<void()>& event);

  Journal& journal_;
  PictureWriter writePicture_;
  BatchWatch watch_;
  BatchServices services_;

 public:
  Form1 form1;

 private:
  SurfaceTrace trace_;
  int memory_;
  int currentLine_ = 0;
};

}  // namespace zerimo::batch
