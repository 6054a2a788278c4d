#pragma once

#include <string>

#include "classroom/class_options.h"

namespace zerimo::classroom {

/// The exit status of a class run.
enum class ClassStatus { ReportWritten = 0, NotWritten = 1, BadUsage = 2, Interrupted = 3 };

/// Runs the programs of a folder and writes the report and its summary. Needs a `QCoreApplication`. Fails with
/// `UsageError` before anything runs.
ClassStatus RunClass(const Command& command, const std::string& version);

}  // namespace zerimo::classroom
