#include "classroom/class_options.h"

#include "base/text.h"
#include "batch/errors.h"

namespace zerimo::classroom {

namespace {

using batch::CommandLine;
using batch::Refuse;
using batch::UsageError;
using batch::WholeText;

/// A program of a class gets less than a session, for there are many.
constexpr double SecondsInClass = 10;
constexpr int MemoryInClass = 512;

constexpr const char* OfClass = "A class";

constexpr const char* Usage =
    "       zerimo-batch --class FOLDER --out REPORT.html [options]\n"
    "       zerimo-batch --list FILE --shard I/N --jsonl PART.jsonl [options]\n"
    "       zerimo-batch --merge PART.jsonl... --out REPORT.html\n";

constexpr const char* HelpEnd =
    "\nWith --class every program (.ZRM) of a folder runs in a process of its own, by the session (.session) of the\n"
    "same name beside it if there is one, and a page about all of them is written.\n"
    "Exit status with --class: 0 the report is written; 1 it can't be written; 2 bad usage; 3 interrupted.\n";

/// Whether a file name has one of the endings of a page: .html or .htm in any case.
bool IsPageName(std::string_view file) {
  const std::string name = UpperCase(file);
  return (name.ends_with(".HTML") && name.size() > 5) || (name.ends_with(".HTM") && name.size() > 4);
}

void TakeFolder(ClassOptions& options, const std::string& value) {
  if (value.empty()) Refuse("--class", value, "a folder is wanted");
  options.Folder = value;
}

void TakeReport(ClassOptions& options, const std::string& value) {
  if (!IsPageName(value)) Refuse("--out", value, "a file name ending in .html or .htm is wanted");
  options.Report = value;
}

void TakePart(ClassOptions& options, const std::string& value) {
  const std::size_t divider = value.find('/');
  const std::string_view text = value;
  const auto index = WholeText<int>(text.substr(0, divider));
  const auto count = WholeText<int>(divider == std::string::npos ? std::string_view() : text.substr(divider + 1));
  if (!index || !count || *index < 1 || *index > *count) Refuse("--shard", value, "I/N is wanted, with I from 1 to N");
  options.Part = {*index, *count};
}

void TakeLanguage(ClassOptions& options, const std::string& value) {
  options.Words = FindLanguage(QString::fromStdString(value));
  if (options.Words == nullptr) Refuse("--lang", value, "en or de is wanted");
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
  const auto addName = [&](const char* name, const char* value, const char* help, std::string& field) {
    line.Add(OfClass, {name, value, help, [name, &field](const std::string& text) {
                         if (text.empty()) Refuse(name, text, "a name is wanted");
                         field = text;
                       }});
  };
  add("--class", "FOLDER", "the folder of the programs", TakeFolder);
  add("--out", "REPORT", "the page to write, .html or .htm; a summary goes beside it as .json", TakeReport);
  addName("--task", "PLACE", "a folder with TASK.md and GOAL.ZRM, or a picture or program to compare with",
          options.Task);
  addName("--session", "FILE", "the session of all programs that have none of their own; it calls each PROGRAM",
          options.Session);
  addName("--names", "CSV", "the pupils' names: a line FILE,NAME or FOLDER,NAME for each", options.Names);
  addName("--template", "FILE", "a program that everyone was given: it makes no programs alike", options.Template);
  addName("--csv", "FILE", "write the marks as a table", options.Marks);
  addName("--pupils", "DIR", "write a page for each pupil, to be handed back", options.Pupils);
  add("--lang", "CODE", "the language of the pages, en or de (en)", TakeLanguage);
  addName("--list", "FILE", "run the programs that the file lists, one a line, in place of a folder", options.List);
  add("--shard", "I/N", "run only the part I of N equal parts", TakePart);
  addName("--jsonl", "FILE", "add a line of JSON for each program as it ends; pictures go beside it", options.Records);
  line.AddFlag(OfClass, "--resume", "do not run again what --jsonl has already", options.Resume);
  line.AddList(OfClass, "--merge", "PART...", "make one report of the files that --jsonl has written", options.Merged);
  line.AddFlag(OfClass, "--follow-links", "follow links that lead out of the folder of the programs",
               options.FollowLinks);
  add("--jobs", "N", "N programs at the same time (one for each core)", TakeJobs);
  line.AddHelp(Usage, HelpEnd);
}

void CheckClass(const CommandLine& line, const Command& command) {
  const ClassOptions& options = command.classOptions;
  if (line.HasSession())
    throw UsageError(command.options.SessionFile + ": no session can be given with --class; put it beside the program");
  if (!options.Folder.empty() && !options.List.empty()) throw UsageError("--list: not with --class");
  if (options.Report.empty() && (options.Records.empty() || command.IsMerge())) {
    const char* const way = command.IsMerge() ? "--merge" : options.Folder.empty() ? "--list" : "--class";
    throw UsageError(std::string(way) + ": the report is missing, give --out");
  }
  if (options.Resume && options.Records.empty()) throw UsageError("--resume: only with --jsonl");
}

/// The options that are given must belong to one kind of run.
void CheckKind(const CommandLine& line, const Command& command) {
  const std::string strange = line.FirstOf(command.IsClass() ? CommandLine::OfSession : OfClass);
  if (!strange.empty()) throw UsageError(strange + (command.IsClass() ? ": not with --class" : ": only with --class"));
  if (command.IsClass()) CheckClass(line, command);
}

}  // namespace

Command ParseCommand(const std::vector<std::string>& arguments) {
  Command command;
  CommandLine line(command.options);
  AddClassOptions(line, command.classOptions);
  line.Parse(arguments);
  command.HelpText = line.HelpText();
  if (command.options.What != batch::Options::Wish::Run) return command;
  CheckKind(line, command);
  if (command.IsClass() && !line.Has("--seconds")) command.options.settings.Seconds = SecondsInClass;
  if (command.IsClass() && !line.Has("--memory")) command.options.settings.Memory = MemoryInClass;
  return command;
}

bool AskForClass(const std::vector<std::string>& arguments) {
  batch::Options ignored;
  ClassOptions options;
  CommandLine line(ignored);
  AddClassOptions(line, options);
  return line.Names("--class", arguments) || line.Names("--list", arguments) || line.Names("--merge", arguments);
}

}  // namespace zerimo::classroom
