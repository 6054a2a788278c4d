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
  explicit PupilSession(const Order& givenOrder);

  /// Runs it and writes transcript and picture.
  Outcome Run();

 private:
  /// Fails with `Reason`.
  void ReadFiles();
  void NoteMistakes();
  void PlaceProgram();
  batch::Script TakeScript();
  batch::Script ScriptWithoutSession();
  void RunScript();
  void Tell(const batch::Outcome& went);
  Place PlaceOfLine(int line) const;
  /// The place in the session and in the program.
  Place WhereItStands(int line);
  void WritePicture();

  const Order& order;
  std::string program;
  std::string session;
  /// Nothing if the program is empty or one line.
  std::optional<ProgramOutline> outline;
  /// What `LOAD` calls the program.
  std::string loadName;
  Outcome outcome;
  BoundedFile transcriptFile;
  std::ostream transcript{&transcriptFile};
  batch::Journal journal{&transcript, nullptr};
  batch::PictureOutput pictures;
  batch::BatchSession system;
};

/// The process of one run: reads its order in the current folder, carries it out and writes the outcome. Returns the
/// exit status of the process.
int RunPupil();

}  // namespace zerimo::classroom
