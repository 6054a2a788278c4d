#pragma once

#include "graphics/drawing_context.h"
#include "interpreter/interpreter.h"

namespace zerimo {

/// The inputs and buttons of the diagnosis panel. None of them is under the skip rule.
class Diagnosis {
 public:
  Diagnosis(const DrawingContext& context, Interpreter& interpreter) : context_(context), interpreter_(interpreter) {}

  void Command1Click() noexcept;
  /// "Refresh": forgets the variables, the control string and the names of the lowering.
  void Command2Click();
  /// The resolution as typed. Fails (overflow) beyond the range of numbers.
  void Text3Change();
  /// The line width as typed. Fails (overflow) above 32767.
  void Text4Change();

 private:
  DrawingContext context_;
  Interpreter& interpreter_;
};

}  // namespace zerimo
