#pragma once

#include <vector>

#include "classroom/findings/mistakes.h"
#include "classroom/session_run.h"

namespace zerimo::classroom {

/// What a run shows and the program's text does not: nothing drawn, a picture that nobody sees, an endless loop.
/// `programLine` is where it was stopped, or 0.
void FindInRun(SessionRun& run, int programLine, std::vector<Finding>& findings);

}  // namespace zerimo::classroom
