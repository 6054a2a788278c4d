#pragma once

#include <string>
#include <vector>

#include "base/services.h"

namespace zerimo::batch {

/// The word of a button: "OK", "Abort", ...
const char* WordOf(Answer answer);

/// The buttons of a kind of box, and the one that is pressed if the session says nothing.
struct BoxButtons {
  std::vector<Answer> Buttons;
  Answer Unasked;
};

/// By a box's style, a number of buttons plus an icon.
const BoxButtons& ButtonsOf(int style);

/// The words of the buttons: "Abort, Retry, Ignore".
std::string ButtonList(const BoxButtons& buttons);

}  // namespace zerimo::batch
