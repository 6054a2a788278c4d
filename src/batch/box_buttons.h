#pragma once

#include <string>
#include <vector>

#include "base/services.h"

namespace zerimo::batch {

/// The word of a button: "OK", "Abort", ...
const char* WordOf(Answer answer) noexcept;

/// The buttons of a kind of box, and the one that is pressed if the session does not say.
struct BoxButtons {
  std::vector<Answer> Buttons;
  Answer Unasked;
};

/// The buttons for a box's style, which is a number of buttons plus an icon.
const BoxButtons& ButtonsOf(int style) noexcept;

/// The words of the buttons: "Abort, Retry, Ignore".
std::string ButtonList(const BoxButtons& buttons);

}  // namespace zerimo::batch
