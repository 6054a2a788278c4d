#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "batch/settings.h"

namespace zerimo::batch {

/// What the command line asks for.
struct Options {
  enum class Wish { Run, Help, Version };
  Wish What = Wish::Run;
  Settings Session;
  /// The file of the session; "-" is standard input.
  std::string SessionFile = "-";
  /// The file of the transcript, "-" for standard output, or empty for none.
  std::string TranscriptFile;
  /// The file of the picture at the end, or empty.
  std::string PictureFile;

  bool TranscriptOnStandardOutput() const { return TranscriptFile == "-"; }
};

/// Fails with `UsageError`. `arguments` are those behind the program's name.
Options ParseOptions(const std::vector<std::string>& arguments);

/// The answer to --help.
std::string HelpText();

}  // namespace zerimo::batch
