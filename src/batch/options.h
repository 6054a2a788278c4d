#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "batch/settings.h"

namespace zerimo::batch {

/// A run of all programs of a folder.
struct ClassOptions {
  std::string Folder;
  /// The page to write; its ending is .html or .htm.
  std::string Report;
  /// Megabytes for each program, on top of what the system itself needs; 0 is no limit.
  int Memory = 512;
  /// How many programs run at the same time; 0 is one for each core.
  int Jobs = 0;
  /// More would need more files at the same time than some systems give to a process.
  static constexpr int MostJobs = 64;
};

/// What the command line asks for.
struct Options {
  enum class Wish { Run, Class, Help, Version };
  Wish What = Wish::Run;
  Settings Session;
  /// The file of the session; "-" is standard input.
  std::string SessionFile = "-";
  /// The file of the transcript, "-" for standard output, or empty for none.
  std::string TranscriptFile;
  /// The file of the picture at the end, or empty.
  std::string PictureFile;
  ClassOptions Class;

  bool TranscriptOnStandardOutput() const { return TranscriptFile == "-"; }
};

/// Fails with `UsageError`. `arguments` are those behind the program's name.
Options ParseOptions(const std::vector<std::string>& arguments);

/// Whether the arguments, right or wrong, ask for a class run.
bool AskForClass(const std::vector<std::string>& arguments);

/// The answer to --help.
std::string HelpText();

}  // namespace zerimo::batch
