#pragma once

#include <string>

#include "base/services.h"
#include "base/watch.h"
#include "console/diagnosis.h"
#include "console/general_primitives.h"
#include "console/keys.h"
#include "console/screen_modes.h"
#include "console/status_line.h"
#include "controls/form_controls.h"
#include "files/editor.h"
#include "files/folders.h"
#include "files/help_pages.h"
#include "files/pictures.h"
#include "files/program_files.h"
#include "files/saving.h"
#include "graphics/colours.h"
#include "graphics/flood_fill.h"
#include "graphics/motion.h"
#include "graphics/palette.h"
#include "graphics/shapes.h"
#include "graphics/surface.h"
#include "graphics/surface_text.h"
#include "graphics/turtle_figure.h"
#include "graphics/turtle_places.h"
#include "interpreter/arguments.h"
#include "interpreter/arithmetic.h"
#include "interpreter/conditionals.h"
#include "interpreter/control_path.h"
#include "interpreter/dispatch.h"
#include "interpreter/inputs.h"
#include "interpreter/lowering.h"
#include "interpreter/program_store.h"
#include "interpreter/runner.h"
#include "interpreter/turtle_state.h"
#include "interpreter/typed_lines.h"
#include "interpreter/variables.h"

namespace zerimo {

/// The whole system: owns every control and all state. It is driven only by the events below. Each event may leave
/// with `Failure` (nothing caught it: the system has ended), `Ended` or `Stopped`; the shell ends the system then.
class Form1 {
 public:
  /// `appFolder` is the folder of the running program.
  Form1(ScreenSize screen, const std::string& appFolder, Services& services, RunWatch& watch, Canvas& canvas);

  /// The load event: to be called once, before any other event.
  void Load();

  // Events. A control that has no handler for an event does nothing. The shell has put what the user did into the
  // control's data before (text, scroll value, selected entry); the mark of a check box is turned over here.
  void KeyDown(Control& control, int keyCode);
  void Click(Control& control);
  /// x and y are in surface units from the control's top left corner.
  void MouseMove(Control& control, float x, float y);
  void MouseDown(Control& control, MouseButton button, bool shift, float x, float y);
  /// A control is dropped on the surface.
  void DragDrop(Control& source, float x, float y);
  void DragOver();
  /// The user changed a text or a scroll bar.
  void Change(Control& control);
  void Tick(Timer& timer);

  /// A control by its name ("Picture1", "Text1(0)"), or nothing.
  Control* FindControl(const std::string& name);
  Timer* FindTimer(const std::string& name);

  /// For the end by a failure, or by closing during a run: the editor's text to Rescued.ZRM in `AppFolder`, if there
  /// is any. Tells whether it was written.
  bool RescueEditorText() const { return Save.RescueEditorText(Place); }

  FormControls Controls;
  Surface Picture1;

  // The state, part by part.
  TurtleState Turtle;
  ControlPath Path;
  ProgramStore Store;
  Folders Place;
  Arithmetic Evaluation;
  Variables Names;
  Arguments Stages;
  Inputs Locals;
  Lowering Repeats;
  Conditionals Conditions;
  Dispatch Primitives;
  Runner Run;
  TypedLines Lines;
  TurtleFigure Figure;
  DrawingContext Drawing;
  TurtlePlaces Places;
  Motion Moves;
  Colours Colouring;
  Shapes Figures;
  FloodFills Floods;
  SurfaceText Writing;
  Palette Mouse;
  Pictures Photos;
  ProgramFiles Files;
  Editor Edit;
  Saving Save;
  HelpPages Help;
  GeneralPrimitives General;
  StatusLine Status;
  ScreenModes Modes;
  Diagnosis Panel;
  Keys Keyboard;

 private:
  void BindPrimitives();
  void DefaultValue();
  void InitialGraphicsScreen();
  void PlaceOverlays();
};

}  // namespace zerimo
