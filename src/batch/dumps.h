#pragma once

#include "batch/json_line.h"
#include "batch/session_script.h"
#include "console/form1.h"

namespace zerimo::batch {

/// The `dump` events.
JsonLine DumpOf(const Form1& form1, action::DumpKind what);
JsonLine DumpOf(const action::DumpControl& control);

}  // namespace zerimo::batch
