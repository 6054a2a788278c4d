#pragma once

#include "base/services.h"
#include "controls/form_controls.h"
#include "graphics/surface.h"
#include "interpreter/arguments.h"
#include "interpreter/arithmetic.h"
#include "interpreter/dispatch.h"
#include "interpreter/turtle_state.h"

namespace zerimo {

/// The primitives that talk, wait and reckon: `PRINT`, `MESSAGE`, `WAIT`, `SOUND`, `COMMANDLIST`, `SUM` and its kin,
/// the credits, `BYE` and `QUIT`, and the bare expressions.
class GeneralPrimitives {
 public:
  GeneralPrimitives(Dispatch& dispatcher, Services& desktop, FormControls& formControls, Surface& picture1,
                    const TurtleState& turtleState, const Arguments& arguments, const Arithmetic& evaluation)
      : dispatch(dispatcher),
        services(desktop),
        controls(formControls),
        Picture1(picture1),
        turtle(turtleState),
        inputs(arguments),
        arithmetic(evaluation) {}

  /// Sets the work of the primitives.
  void Bind();

 private:
  void SayDeveloper();
  void WriteCommandList();
  void Wait(PrimitiveCall& call);
  void Message(PrimitiveCall& call);
  void Print(PrimitiveCall& call);
  void BracketChain(PrimitiveCall& call, char op);
  void TwoInputs(PrimitiveCall& call, Action action);
  void ArithmeticLine(PrimitiveCall& call);
  void RelationLine(PrimitiveCall& call);

  Dispatch& dispatch;
  Services& services;
  FormControls& controls;
  Surface& Picture1;
  const TurtleState& turtle;
  const Arguments& inputs;
  const Arithmetic& arithmetic;
};

}  // namespace zerimo
