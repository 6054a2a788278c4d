#pragma once

#include <string>
#include <vector>

#include "batch/options.h"

namespace zerimo::classroom {

/// The argument by which a class run starts the runner for one pupil.
inline constexpr const char* PupilArgument = "--class-pupil";

/// A run of all programs of a folder.
struct ClassOptions {
  /// Empty if no class run is asked for.
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

/// All that the command line says.
struct Command {
  batch::Options Runner;
  ClassOptions Class;
  std::string HelpText;

  bool IsClass() const { return !Class.Folder.empty(); }
};

/// Fails with `UsageError`. `arguments` are those after the program's name.
Command ParseCommand(const std::vector<std::string>& arguments);

/// Whether the arguments, right or wrong, ask for a class run.
bool AskForClass(const std::vector<std::string>& arguments);

}  // namespace zerimo::classroom
