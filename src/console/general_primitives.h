#pragma once

#include "graphics/drawing_context.h"

namespace zerimo {

/// The primitives that talk, wait and reckon: `PRINT`, `MESSAGE`, `WAIT`, `SOUND`, `COMMANDLIST`, `SUM` and its kin,
/// the credits, `BYE` and `QUIT`, and the bare expressions.
class GeneralPrimitives {
 public:
  GeneralPrimitives(const DrawingContext& context, const Arithmetic& arithmetic)
      : context_(context), arithmetic_(arithmetic) {}

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

  DrawingContext context_;
  const Arithmetic& arithmetic_;
};

}  // namespace zerimo
