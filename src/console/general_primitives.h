#pragma once

#include "files/folders.h"
#include "graphics/drawing_context.h"

namespace zerimo {

/// The primitives that talk, wait and calculate: `PRINT`, `MESSAGE`, `WAIT`, `SOUND`, `COMMANDLIST`, `SUM` and the
/// like, the credits, `BYE` and `QUIT`, and the bare expressions.
class GeneralPrimitives {
 public:
  GeneralPrimitives(const DrawingContext& context, const Arithmetic& arithmetic, const Folders& folders)
      : context_(context), arithmetic_(arithmetic), folders_(folders) {}

  /// Binds the primitives to their actions.
  void Bind();

 private:
  void SayDeveloper();
  void WriteCommandList();
  void Wait(PrimitiveCall& call);
  void Message(PrimitiveCall& call);
  void Print(PrimitiveCall& call);
  void BracketChain(PrimitiveCall& call, char op);
  void TwoInputs(PrimitiveCall& call, double (*work)(double, std::int16_t));
  void ArithmeticLine(PrimitiveCall& call);
  void RelationLine(PrimitiveCall& call);

  DrawingContext context_;
  const Arithmetic& arithmetic_;
  const Folders& folders_;
};

}  // namespace zerimo
