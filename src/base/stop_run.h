#pragma once

namespace zerimo {

/// The user has stopped the running line. A shell throws it from a service or the watch. The walk ends as if its
/// procedures had ended; a stop outside a walk is caught by the shell.
struct StopRun {};

}  // namespace zerimo
