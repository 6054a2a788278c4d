#pragma once

#include <optional>
#include <string>

#include "batch/batch_session.h"
#include "batch/picture_output.h"
#include "classroom/bounded_file.h"
#include "classroom/order.h"
#include "classroom/program_outline.h"

namespace zerimo::classroom {

/// Runs one pupil's program in this process, which does nothing else. The current folder is the run's folder.
class PupilSession {
 public:
  explicit PupilSession(const Order& order);

  /// Runs it and writes transcript and picture.
  RunOutcome Run();

 private:
  /// Fails with `Reason`.
  void ReadFiles();
  void NoteMistakes();
  void PlaceProgram();
  batch::Script TakeScript();
  batch::Script ScriptWithoutSession();
  void RunScript();
  void Tell(const batch::Outcome& went);
  StopPlace PlaceOfLine(int line) const;
  /// The place in the session and in the program.
  StopPlace WhereItStands(int line);
  void WritePicture();

  const Order& order_;
  std::string program_;
  std::string session_;
  /// Nothing if the program is empty or one line.
  std::optional<ProgramOutline> outline_;
  /// What `LOAD` calls the program.
  std::string loadName_;
  RunOutcome outcome_;
  BoundedFile transcriptFile_;
  std::ostream transcript_{&transcriptFile_};
  batch::Journal journal_{&transcript_, nullptr};
  batch::PictureOutput pictures_;
  batch::BatchSession system_;
};

/// The process of one run: reads its order in the current folder, carries it out and writes the outcome. Returns the
/// exit status of the process.
int RunPupil();

}  // namespace zerimo::classroom
