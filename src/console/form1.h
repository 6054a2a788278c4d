#pragma once

#include <string>

#include "base/services.h"
#include "base/watch.h"
#include "console/diagnosis.h"
#include "console/general_primitives.h"
#include "console/keys.h"
#include "console/screen_modes.h"
#include "console/status_line.h"
#include "files/files.h"
#include "graphics/graphics.h"
#include "interpreter/interpreter.h"

namespace zerimo {

/// The whole system: owns every control and all state. It is driven only by the events below. Each event may leave
/// with `Failure` (nothing caught it: the system has ended), `Ended` or `Stopped`; the shell ends the system then.
class Form1 {
 public:
  Form1(ScreenSize screen, Folders givenFolders, Services& services, Watch& watch, Canvas& canvas);

  /// The load event: must be called once, before any other event.
  void Load();

  // Events. A control that has no handler for an event does nothing. The shell first puts what the user did into the
  // control's data (text, scroll value, selected entry); but a check box is toggled here.
  void KeyDown(Control& control, int keyCode);
  void Click(Control& control);
  /// x and y are in surface units from the control's top left corner.
  void MouseMove(Control& control, float x, float y);
  void MouseDown(Control& control, MouseButton button, bool shift, float x, float y);
  /// A control is dropped on the surface.
  void DragDrop(Control& source, float x, float y) noexcept;
  void DragOver() noexcept;
  /// The user changed a text or a scroll bar.
  void Change(Control& control);
  void Tick(Timer& timer);

  /// A control by its name ("Picture1", "Text1(0)"), or null.
  Control* FindControl(const std::string& name);
  Timer* FindTimer(const std::string& name) noexcept;

  /// For an end by a failure, or by closing during a run: keeps the editor's text. See `Saving`.
  std::optional<std::filesystem::path> RescueEditorText(const std::vector<std::filesystem::path>& others = {}) const {
    return files.saving.RescueEditorText(others);
  }

  Controls controls;
  Surface Picture1;
  Turtle turtle;
  const Folders folders;
  Interpreter interpreter;

 private:
  DrawingContext context_;

 public:
  Graphics graphics;
  Files files;
  GeneralPrimitives generalPrimitives;
  StatusLine statusLine;
  ScreenModes screenModes;
  Diagnosis diagnosis;
  Keys keys;

 private:
  void BindPrimitives();
  void DefaultValue();
  /// Never fails: the indices are those of the design.
  void InitialGraphicsScreen();
  void PlaceOverlays();
};

}  // namespace zerimo
