#pragma once

#include <filesystem>
#include <vector>

#include "classroom/findings/mistakes.h"
#include "classroom/session_run.h"

namespace zerimo::classroom {

/// What a run shows and the program's text does not: nothing drawn, a picture that nobody sees, an endless loop.
/// `programLine` is where it was stopped, or 0; `hasBegun` says whether anything of the program was called. What
/// `findings` already holds is not reported again.
void FindInRun(SessionRun& run, int programLine, bool hasBegun, std::vector<Finding>& findings);

/// What a program loads from beside it in the folder of a class, where each file is somebody's own. What it has saved
/// itself is elsewhere.
void FindLoaded(const QString& program, const std::filesystem::path& file, std::vector<Finding>& findings);

}  // namespace zerimo::classroom
