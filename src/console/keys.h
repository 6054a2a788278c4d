#pragma once

#include "console/screen_modes.h"
#include "files/files.h"
#include "graphics/drawing_context.h"

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
  Keys(const DrawingContext& context, TypedLines& typedLines, ScreenModes& screenModes, Files& files)
      : context_(context), typedLines_(typedLines), screenModes_(screenModes), files_(files) {}

  /// A key on a row; the whole handler is under the skip rule.
  void Text1KeyDown(int index, int keyCode);
  void List4KeyDown(int keyCode);
  void Picture1KeyDown(int keyCode);
  void Text2KeyDown(int keyCode);
  void RichTextBox1KeyDown(int keyCode);
  void File1KeyDown(int keyCode) noexcept;
  void Form1KeyDown(int keyCode);

  /// Fires once and gives the focus to row 0; a refused focus is ignored.
  void Timer2Tick();

 private:
  /// Enter in row `index`, 0 to 4. Never fails.
  void EnterLine(int index);
  /// Never fails.
  void ScrollRows();
  void ClosePanels() noexcept;
  void AskForProgramFile();

  DrawingContext context_;
  TypedLines& typedLines_;
  ScreenModes& screenModes_;
  Files& files_;
};

}  // namespace zerimo
