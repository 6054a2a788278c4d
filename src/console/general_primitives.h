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
      : dispatch_(dispatcher),
        services_(desktop),
        controls_(formControls),
        Picture1(picture1),
        turtle_(turtleState),
        inputs_(arguments),
        arithmetic_(evaluation) {}

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

  Dispatch& dispatch_;
  Services& services_;
  FormControls& controls_;
  Surface& Picture1;
  const TurtleState& turtle_;
  const Arguments& inputs_;
  const Arithmetic& arithmetic_;
};

}  // namespace zerimo
