#include "reference/interpreter/interpreter.h"

namespace zerimo::reference {

Interpreter::Interpreter(const InterpreterContext& context)
    : program_{context, store, controlPath, variables, arithmetic},
      store(context.controls.List3),
      arithmetic(context.watch),
      variables(context, store, controlPath, arithmetic),
      arguments(variables, arithmetic),
      dispatch(context.services),
      inputs(program_),
      lowering(program_),
      conditionals(program_),
      runner(program_, dispatch, inputs, conditionals),
      typedLines(program_, lowering, runner) {}

}  // namespace zerimo::reference
