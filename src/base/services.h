#pragma once

#include <cstdint>
#include <string>

namespace zerimo {

/// The button that the user pressed in a message box.
enum class Answer { OK, Abort, Retry, Ignore, Yes, No };

/// Styles of the message box: a number of buttons plus an icon.
namespace box {
inline constexpr int Plain = 0;
inline constexpr int AbortRetryIgnore = 2;
inline constexpr int YesNo = 4;
inline constexpr int Critical = 16;
inline constexpr int Information = 64;
}  // namespace box

/// What the system asks of the desktop. Three shells provide it: the window, the batch runner and the page.
class Services {
 public:
  virtual ~Services() = default;

  /// Shows a modal box and returns the button pressed. With an empty `title` the system sets no title of its own.
  virtual Answer MessageBox(const std::string& text, int style = box::Plain, const std::string& title = {}) = 0;

  /// Shows a modal input box and returns the answer; empty also if it was cancelled.
  virtual std::string InputBox(const std::string& prompt, const std::string& title,
                               const std::string& defaultAnswer = {}) = 0;

  /// The file dialogs: the full path chosen, or empty. `text` is what the system hands to the save dialog.
  virtual std::string ShowOpen() = 0;
  virtual std::string ShowSave(const std::string& text) = 0;

  /// Blocks for a number of milliseconds; a negative number does not block.
  virtual void Sleep(std::int32_t milliseconds) = 0;

  virtual void Beep() = 0;

  /// The time of day in the desktop's short form.
  virtual std::string TimeOfDay() = 0;
};

}  // namespace zerimo
