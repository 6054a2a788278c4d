#pragma once

#include <string>
#include <vector>

#include "batch/batch_session.h"
#include "batch/picture_output.h"
#include "classroom/bounded_file.h"
#include "classroom/drawings/drawing.h"
#include "classroom/order.h"
#include "classroom/transcript_reader.h"
#include "classroom/zero_watch.h"

namespace zerimo::classroom {

/// What is done with a program: a session from a file, or lines that are typed if there is none.
struct Play {
  std::string Session;
  std::vector<std::string> Typed;

  bool operator==(const Play&) const = default;
};

/// Text that a pupil has written, cut to a length for a report.
QString ShortText(const QString& text);
QString FromLatin1(const std::string& text);

/// One session of a pupil's program in this process. Runs once.
class SessionRun {
 public:
  /// The transcript goes to a file. `possibleZeros` are looked for while it runs.
  SessionRun(const Order& order, const std::filesystem::path& transcript, const Findings& possibleZeros);

  /// No failure in the session leaves this object.
  void Run(const Play& play);

  /// How it went, with any notes.
  const RunOutcome& Outcome() const { return outcome_; }
  const DrawingRecorder& Recorder() const { return recorder_; }
  const ZeroWatch& Zeros() const { return zeros_; }
  /// What was said, from the transcript.
  Said Told() const;
  /// The line of the store where it was stopped, or 0.
  int StoreLine() const { return storeLine_; }

  /// The picture as it is now. Fails (file access).
  void WritePicture(const std::filesystem::path& file);

 private:
  batch::Script ScriptOf(const Play& play);
  void Tell(const batch::Outcome& outcome, const Play& play);
  static StopPlace PlaceOfLine(int line, const Play& play);
  /// The place in the session and in the program.
  StopPlace WhereItStands(int line, const Play& play);

  std::filesystem::path transcriptName_;
  BoundedFile transcriptFile_;
  std::ostream transcript_{&transcriptFile_};
  batch::Journal journal_{&transcript_, nullptr};
  batch::PictureOutput pictures_;
  batch::BatchSession session_;
  DrawingRecorder recorder_;
  ZeroWatch zeros_;
  RunOutcome outcome_;
  int storeLine_ = 0;

 public:
  Form1& form1 = session_.form1;
};

}  // namespace zerimo::classroom
