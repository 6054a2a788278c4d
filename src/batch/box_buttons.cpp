#include "batch/box_buttons.h"

namespace zerimo::batch {

const char* WordOf(Answer answer) noexcept {
  switch (answer) {
    case Answer::OK:
      return "OK";
    case Answer::Abort:
      return "Abort";
    case Answer::Retry:
      return "Retry";
    case Answer::Ignore:
      return "Ignore";
    case Answer::Yes:
      return "Yes";
    case Answer::No:
      return "No";
  }
  return "";
}

const BoxButtons& ButtonsOf(int style) noexcept {
  static const BoxButtons plain{{Answer::OK}, Answer::OK};
  static const BoxButtons abortRetryIgnore{{Answer::Abort, Answer::Retry, Answer::Ignore}, Answer::Ignore};
  static const BoxButtons yesNo{{Answer::Yes, Answer::No}, Answer::No};
  switch (style % box::Critical) {
    case box::AbortRetryIgnore:
      return abortRetryIgnore;
    case box::YesNo:
      return yesNo;
    default:
      return plain;
  }
}

std::string ButtonList(const BoxButtons& buttons) {
  std::string words;
  for (const Answer button : buttons.Buttons) {
    if (!words.empty()) words += ", ";
    words += WordOf(button);
  }
  return words;
}

}  // namespace zerimo::batch
