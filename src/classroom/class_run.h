#pragma once

#include <string>

#include "classroom/class_options.h"

namespace zerimo::classroom {

/// The exit status of a class run.
enum class ClassStatus { ReportWritten = 0, NotWritten = 1, BadUsage = 2, Interrupted = 3 };

/// Runs the programs of a class and writes the results, or merges its parts. Needs a `QGuiApplication`. Fails with
/// `UsageError`, before any program runs.
ClassStatus RunClass(const Command& command, const std::string& version);

/// The text of the program that everyone was given, or nothing. Fails with `UsageError`.
QString TemplateOf(const ClassOptions& options);

/// Makes one report of the parts of a class without holding them in memory. Fails with `UsageError`.
ClassStatus MergeParts(const Command& command, const std::string& version);

}  // namespace zerimo::classroom
