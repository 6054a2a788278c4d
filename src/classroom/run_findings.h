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

/// What a program loads that is not there, and what it loads from beside it if that folder is shared, where each file
/// is somebody's own. What it has saved itself is elsewhere.
void FindLoaded(const QString& program, const std::filesystem::path& file, bool isShared,
                std::vector<Finding>& findings);

}  // namespace zerimo::classroom
