#pragma once

#include <string>
#include <vector>

#include "batch/options.h"
#include "classroom/language.h"

namespace zerimo::classroom {

/// The argument by which a class run starts the runner for one pupil.
inline constexpr const char* PupilArgument = "--class-pupil";

/// One of the equal parts of a long list of programs.
struct ListPart {
  /// From 1 to `Count`.
  int Index = 1;
  int Count = 1;
};

/// A run of all programs of a folder or a list, or a report about parts of such a run.
struct ClassOptions {
  /// The folder of the programs, or empty.
  std::string Folder;
  /// A file that lists the programs, or empty.
  std::string List;
  /// The part of the programs that is run.
  ListPart Part;
  /// The files of the parts that are merged; if there are any, nothing is run.
  std::vector<std::string> Merged;
  /// The page to write; its ending is .html or .htm. May be empty if `Records` is not.
  std::string Report;
  /// The file that gets a line for each program as it ends, or empty.
  std::string Records;
  /// Whether what `Records` has already is not run again.
  bool Resume = false;
  /// A folder with the task, or a model alone; or empty.
  std::string Task;
  /// The session for all programs that have none of their own, or empty.
  std::string Session;
  /// A table of the pupils' names, or empty.
  std::string Names;
  /// A program that everyone was given, or empty.
  std::string Template;
  /// The table of marks to write, or empty.
  std::string Marks;
  /// The folder that gets a page for each pupil, or empty.
  std::string Pupils;
  const Language* Words = &English;
  /// Whether links that lead out of the class folder are followed.
  bool FollowLinks = false;
  /// How many programs run at the same time; 0 is one for each core.
  int Jobs = 0;
  /// More would need more files at the same time than some systems give to a process.
  static constexpr int MostJobs = 64;
};

/// All that the command line says.
struct Command {
  batch::Options options;
  ClassOptions classOptions;
  std::string HelpText;

  bool IsMerge() const { return !classOptions.Merged.empty(); }
  /// Whether it is about a class at all.
  bool IsClass() const { return !classOptions.Folder.empty() || !classOptions.List.empty() || IsMerge(); }
};

/// Fails with `UsageError`. `arguments` are those after the program's name.
Command ParseCommand(const std::vector<std::string>& arguments);

/// Whether the arguments, right or wrong, ask for a class run.
bool AskForClass(const std::vector<std::string>& arguments);

}  // namespace zerimo::classroom
