#pragma once

#include <string>
#include <string_view>

#include "interpreter/conditionals.h"
#include "interpreter/context.h"
#include "interpreter/dispatch.h"
#include "interpreter/inputs.h"
#include "interpreter/statement_class.h"

namespace zerimo {

/// Walks the store line by line from the `TO` line of one procedure until the whole call tree is finished. One loop: a
/// call only lengthens the control string. Runs under the skip rule.
/// Behaviour: docs/interpreter.md, "Running".
class Runner {
 public:
  Runner(const ProgramContext& context, Dispatch& dispatch, Inputs& inputs, Conditionals& conditionals);

  /// Runs a procedure, named without `TO`; an unknown name ends silently.
  void Run1(std::string_view procedure);

  /// The line of the store that runs or runs next, from 1; 0 if nothing runs. The last number of the control string can
  /// be another one: after an ENDIF it is one ahead. It stays where a failure ended the walk.
  int LineNow() const noexcept { return lineNow_; }

 private:
  /// The locals of one walk. They keep their values from line to line, so that the old value remains after a failed
  /// statement.
  struct Walk {
    int Line = 0;
    StatementClass Class = StatementClass{};
    std::string Name;
    bool Over = false;
  };

  /// Whether there is a line to run.
  bool GoesOn(const Walk& walk) const;
  /// Runs the next lines, a hundred at most.
  void RunStretch(Walk& walk);
  void Act(Walk& walk);
  void Advance(Walk& walk);
  void ActOnCall(Walk& walk);
  void ActOnTo(Walk& walk);
  void ActOnEnd(Walk& walk);
  void ActOnGoto(Walk& walk);
  void TellUndeclaredLabel(Walk& walk, int jump);
  void ActOnLabel(Walk& walk);
  void ActOnEndIf(Walk& walk);
  /// Never fails: it ends within the store.
  void ActOnElse(Walk& walk);
  void ActOnExpression(Walk& walk, std::string_view word);

  ProgramContext context_;
  Dispatch& dispatch_;
  Inputs& inputs_;
  Conditionals& conditionals_;
  int lineNow_ = 0;
};

}  // namespace zerimo
