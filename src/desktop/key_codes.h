#pragma once

class QKeyEvent;

namespace zerimo {

/// The system's code of a key, or 0 for one that it does not know.
int KeyCode(const QKeyEvent& event);

}  // namespace zerimo
