#pragma once

#include <string>

#include "batch/options.h"
#include "batch/session_pictures.h"

namespace zerimo::batch {

/// Says on standard error what went wrong, and returns the exit status for it.
int Complain(const std::string& words);

/// Prints the help or the version if that is what the command line asks for. Returns whether it was.
bool AnswersQuestion(const Options& options, const std::string& help, const std::string& version);

/// Carries out one session as the command line asks for it: reads it, writes the transcript and the picture at the end,
/// and returns the exit status.
int RunSession(const Options& options, SessionPictures& pictures);

}  // namespace zerimo::batch
