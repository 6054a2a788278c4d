#pragma once

#include "controls/form_controls.h"
#include "graphics/surface.h"
#include "interpreter/control_path.h"
#include "interpreter/lowering.h"
#include "interpreter/turtle_state.h"
#include "interpreter/variables.h"

namespace zerimo {

/// The inputs and buttons of the diagnosis panel. None of them is under the skip rule.
class Diagnosis {
 public:
  Diagnosis(FormControls& formControls, Surface& picture1, TurtleState& turtleState, ControlPath& controlPath,
            Variables& allVariables, Lowering& repeatLowering)
      : controls_(formControls),
        Picture1(picture1),
        turtle_(turtleState),
        path_(controlPath),
        variables_(allVariables),
        lowering_(repeatLowering) {}

  void Command1Click();
  /// "Refresh": forgets the variables, the control string and the names of the lowering.
  void Command2Click();
  /// The resolution as typed. Fails (overflow) beyond the range of numbers.
  void Text3Change();
  /// The line width as typed. Fails (overflow) above 32767.
  void Text4Change();

 private:
  FormControls& controls_;
  Surface& Picture1;
  TurtleState& turtle_;
  ControlPath& path_;
  Variables& variables_;
  Lowering& lowering_;
};

}  // namespace zerimo
