#include "classroom/class_options.h"

#include "batch/errors.h"

namespace zerimo::classroom {

namespace {

using batch::CommandLine;
using batch::Refuse;
using batch::UsageError;
using batch::WholeText;

/// A program of a class gets less time than a session, for there are many.
constexpr double SecondsInClass = 10;
constexpr int LeastMemory = 16;
constexpr int GreatestMemory = 1 << 20;

constexpr const char* OfClass = "A class";

constexpr const char* Usage = "       zerimo-batch --class FOLDER --out REPORT.html [options]\n";

constexpr const char* HelpEnd =
    "\nWith --class every program (.ZRM) of a folder runs in a process of its own, by the session (.session) of the\n"
    "same name beside it if there is one, and a page about all of them is written.\n"
    "Exit status with --class: 0 the report is written; 1 it can not be written; 2 bad usage; 3 interrupted.\n";

void TakeFolder(ClassOptions& options, const std::string& value) {
  if (value.empty()) Refuse("--class", value, "a folder is wanted");
  options.Folder = value;
}

void TakeReport(ClassOptions& options, const std::string& value) {
  if (!batch::IsPageName(value)) Refuse("--out", value, "a file name ending in .html or .htm is wanted");
  options.Report = value;
}

void TakeMemory(ClassOptions& options, const std::string& value) {
  const auto memory = WholeText<int>(value);
  const bool sane = memory && (*memory == 0 || (*memory >= LeastMemory && *memory <= GreatestMemory));
  if (!sane) Refuse("--memory", value, "megabytes are wanted, from 16 to 1048576, or 0");
  options.Memory = *memory;
}

void TakeJobs(ClassOptions& options, const std::string& value) {
  const auto jobs = WholeText<int>(value);
  if (!jobs || *jobs < 1 || *jobs > ClassOptions::MostJobs)
    Refuse("--jobs", value, "a whole number from 1 to 64 is wanted");
  options.Jobs = *jobs;
}

void AddClassOptions(CommandLine& line, ClassOptions& options) {
  const auto add = [&](const char* name, const char* value, const char* help,
                       void (*take)(ClassOptions&, const std::string&)) {
    line.Add(OfClass, {name, value, help, [&options, take](const std::string& text) { take(options, text); }});
  };
  add("--class", "FOLDER", "the folder of the programs", TakeFolder);
  add("--out", "REPORT", "the page to write, .html or .htm; a summary goes beside it as .json", TakeReport);
  add("--memory", "MB", "at most MB megabytes for each program; 0 is no limit (512)", TakeMemory);
  add("--jobs", "N", "N programs at the same time (one for each core)", TakeJobs);
  line.AddHelp(Usage, HelpEnd);
}

/// The options that are given must belong to one kind of run.
void CheckKind(const CommandLine& line, const Command& command) {
  const std::string strange = line.FirstOf(command.IsClass() ? CommandLine::OfSession : OfClass);
  if (!strange.empty()) throw UsageError(strange + (command.IsClass() ? ": not with --class" : ": only with --class"));
  if (!command.IsClass()) return;
  if (line.HasSession())
    throw UsageError(command.Runner.SessionFile + ": no session can be given with --class; put it beside the program");
  if (command.Class.Report.empty()) throw UsageError("--class: the report is missing, give --out");
}

}  // namespace

Command ParseCommand(const std::vector<std::string>& arguments) {
  Command command;
  CommandLine line(command.Runner);
  AddClassOptions(line, command.Class);
  line.Parse(arguments);
  command.HelpText = line.HelpText();
  if (command.Runner.What != batch::Options::Wish::Run) return command;
  CheckKind(line, command);
  if (command.IsClass() && !line.Has("--seconds")) command.Runner.Session.Seconds = SecondsInClass;
  return command;
}

bool AskForClass(const std::vector<std::string>& arguments) {
  batch::Options ignored;
  ClassOptions options;
  CommandLine line(ignored);
  AddClassOptions(line, options);
  return line.Names("--class", arguments);
}

}  // namespace zerimo::classroom
