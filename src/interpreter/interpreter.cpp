#include "interpreter/interpreter.h"

namespace zerimo {

Interpreter::Interpreter(const InterpreterContext& context)
    : context_{context, store, controlPath, variables, arithmetic},
      store(context.controls.List3),
      arithmetic(context.watch),
      variables(context_),
      arguments(variables, arithmetic),
      dispatch(context.services),
      inputs(context_),
      lowering(context_),
      conditionals(context_),
      runner(context_, dispatch, inputs, conditionals),
      typedLines(context_, lowering, runner) {}

}  // namespace zerimo
