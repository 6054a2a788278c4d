#include "interpreter/interpreter.h"

namespace zerimo {

Interpreter::Interpreter(const InterpreterContext& context)
    : program_{context, store, controlPath, variables, arithmetic},
      store(context.controls.List3),
      arithmetic(context.watch),
      variables(program_),
      arguments(variables, arithmetic),
      dispatch(context.services),
      inputs(program_),
      lowering(program_),
      conditionals(program_),
      runner(program_, dispatch, inputs, conditionals),
      typedLines(program_, lowering, runner) {}

}  // namespace zerimo
