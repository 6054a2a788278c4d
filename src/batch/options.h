#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "batch/settings.h"

namespace CLI {
class App;
}

namespace zerimo::batch {

/// What the command line asks for.
struct Options {
  enum class Wish { Run, Help, Version };
  Wish What = Wish::Run;
  Settings settings;
  /// The file of the session; "-" is standard input.
  std::string SessionFile = "-";
  /// The file of the transcript, "-" for standard output, or empty for none.
  std::string TranscriptFile;
  /// The file of the picture at the end, or empty.
  std::string PictureFile;

  bool TranscriptOnStandardOutput() const { return TranscriptFile == "-"; }
};

/// An option that has a value.
struct ValueOption {
  /// With its dashes.
  const char* Name;
  /// What the help calls the value.
  const char* Value;
  const char* Help;
  /// Takes the value, or fails with `UsageError`. If an option is given twice, only its last value is taken.
  std::function<void(const std::string& value)> Take;
};

/// Fails with a `UsageError` in one line: "--steps x: a whole number is wanted".
[[noreturn]] void Refuse(std::string_view option, std::string_view value, std::string_view wanted);

/// The command line of the runner. It knows the options of a session; others are added before parsing.
class CommandLine {
 public:
  /// The group of the options that every run has, and of those of a session.
  static constexpr const char* Shared = "Every run";
  static constexpr const char* OfSession = "One session";

  /// `options` is filled by `Parse`.
  explicit CommandLine(Options& options);
  ~CommandLine();
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;

  /// Options of one group are under one heading in the help.
  void Add(const char* group, const ValueOption& option);
  /// An option that takes all values that follow it.
  void AddList(const char* group, const char* name, const char* value, const char* help,
               std::vector<std::string>& values);
  void AddFlag(const char* group, const char* name, const char* help, bool& flag);
  /// Text for the help: below the usage, and at the end.
  void AddHelp(const std::string& usage, const std::string& end);

  /// Fails with `UsageError`. `arguments` are those after the program's name.
  void Parse(const std::vector<std::string>& arguments);

  /// After `Parse`: whether an option, or a session, was given.
  bool Has(const std::string& name) const;
  bool HasSession() const;
  /// After `Parse`: the first given option of a group, or empty.
  std::string FirstOf(const std::string& group) const;

  /// Whether the arguments, right or wrong, name an option.
  bool Names(const std::string& option, const std::vector<std::string>& arguments) const;

  /// The answer to --help.
  std::string HelpText() const;

 private:
  void AddShared();
  void AddOfSession();

  Options& options_;
  std::unique_ptr<CLI::App> parser_;
  std::string usage_;
  std::string end_;
};

}  // namespace zerimo::batch
