#pragma once

#include "base/services.h"
#include "console/screen_modes.h"
#include "controls/form_controls.h"
#include "files/editor.h"
#include "files/help_pages.h"
#include "files/saving.h"
#include "interpreter/dispatch.h"
#include "interpreter/typed_lines.h"

namespace zerimo {

/// The codes of the keys that the system knows.
namespace key {
inline constexpr int Enter = 13;
inline constexpr int Esc = 27;
inline constexpr int Up = 38;
inline constexpr int Down = 40;
inline constexpr int F1 = 112;
inline constexpr int F2 = 113;
inline constexpr int F3 = 114;
inline constexpr int F4 = 115;
inline constexpr int F9 = 120;
inline constexpr int F10 = 121;
inline constexpr int F11 = 122;
inline constexpr int F12 = 123;
}  // namespace key

/// The one table of keys of the window, control by control.
class Keys {
 public:
  Keys(FormControls& formControls, Dispatch& dispatcher, Services& desktop, TypedLines& typedLines,
       ScreenModes& screenModes, Editor& theEditor, Saving& savingPart, HelpPages& helpPages)
      : controls_(formControls),
        dispatch_(dispatcher),
        services_(desktop),
        lines_(typedLines),
        modes_(screenModes),
        editor_(theEditor),
        saving_(savingPart),
        help_(helpPages) {}

  /// A key on a row; the whole handler is under the skip rule.
  void Text1KeyDown(int index, int keyCode);
  void List4KeyDown(int keyCode);
  void Picture1KeyDown(int keyCode);
  void Text2KeyDown(int keyCode);
  void RichTextBox1KeyDown(int keyCode);
  void File1KeyDown(int keyCode);
  void Form1KeyDown(int keyCode);

  /// The one-shot that gives the focus to row 0; a refused focus is passed over.
  void Timer2Tick();

 private:
  void EnterLine(int index);
  void ScrollRows();
  void ClosePanels();
  void AskForProgramFile();

  FormControls& controls_;
  Dispatch& dispatch_;
  Services& services_;
  TypedLines& lines_;
  ScreenModes& modes_;
  Editor& editor_;
  Saving& saving_;
  HelpPages& help_;
};

}  // namespace zerimo
