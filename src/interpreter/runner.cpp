#include "interpreter/runner.h"

#include <set>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/stop_run.h"
#include "base/text.h"
#include "interpreter/control_path.h"
#include "interpreter/store.h"
#include "interpreter/variables.h"

namespace zerimo {

namespace {

using Lead = ControlPath::Lead;

/// Shows the control string in a label during a run, and leaves its last state there, however the run ends.
class ShownPath {
 public:
  ShownPath(Label& label, const ControlPath& controlPath) : label_(label), controlPath_(controlPath) {}
  ~ShownPath() {
    label_.Caption.Follow([this]() -> const std::string& { return controlPath_.CtrlStr(); });
    label_.Caption.Keep();
  }
  ShownPath(const ShownPath&) = delete;
  ShownPath& operator=(const ShownPath&) = delete;

  /// For the user to see while a box is open.
  void Follow() {
    label_.Caption.Follow([this]() -> const std::string& { return controlPath_.CtrlStr(); });
  }

 private:
  Label& label_;
  const ControlPath& controlPath_;
};

/// The procedures on the path of a stopped walk, the innermost first, each once: a recursion names one many times.
std::vector<std::string> ProceduresOn(const std::string& path) {
  std::vector<std::string> names;
  std::set<std::string> seen;
  for (std::size_t end = path.size(), dot; end > 0 && (dot = path.rfind('.', end - 1)) != std::string::npos;
       end = dot) {
    std::string name = path.substr(dot + 1, path.find('-', dot) - dot - 1);
    if (seen.insert(name).second) names.push_back(std::move(name));
  }
  return names;
}

}  // namespace

Runner::Runner(const ProgramContext& context, Dispatch& dispatch, Inputs& inputs, Conditionals& conditionals)
    : context_(context), dispatch_(dispatch), inputs_(inputs), conditionals_(conditionals) {}

void Runner::Run1(std::string_view procedure) {
  ShownPath shown(context_.controls.Label19, context_.controlPath);
  Walk walk;
  SkipOnFailure([&] { walk.Line = context_.store.WhereProcedure(procedure); });
  if (walk.Line == 0) return;
  context_.controlPath.SetCtrlStr(context_.controlPath.CtrlStr() + std::string(procedure) + "-" + Str(walk.Line));
  shown.Follow();
  try {
    while (GoesOn(walk)) RunStretch(walk);
  } catch (const StopRun&) {
    // An endless recursion has filled all slots, and with none free the next line would hang.
    context_.variables.RemoveLocals(ProceduresOn(context_.controlPath.CtrlStr()));
    context_.controlPath.SetCtrlStr(".");
  }
  lineNow_ = 0;
}

bool Runner::GoesOn(const Walk& walk) const {
  // A walk past the end of the store has nothing left to run.
  return !context_.controlPath.NothingRuns() && !walk.Over && walk.Line <= Store::LineCount;
}

[[gnu::always_inline]] inline void Runner::Act(Walk& walk) {
  lineNow_ = walk.Line;
  context_.watch.Step();
  SkipOnFailure([&] { walk.Class = context_.store.ClassOf(walk.Line); });
  switch (walk.Class) {
    case StmtPrimitive:
      SkipOnFailure([&] {
        context_.store.TrimLine(walk.Line);
        dispatch_.Execute(context_.store.FormOf(walk.Line));  // Never fails: there is such a line.
      });
      Advance(walk);
      break;
    case StmtCall:
      ActOnCall(walk);
      break;
    case StmtTo:
      ActOnTo(walk);
      break;
    case StmtEnd:
      ActOnEnd(walk);
      break;
    case StmtGoto:
      ActOnGoto(walk);
      break;
    case StmtLabel:
      ActOnLabel(walk);
      break;
    case StmtIf:
      // A condition that fails leaves the line counter: the IF runs again, for ever if it always fails.
      SkipOnFailure([&] { walk.Line = conditionals_.Ifprocessor(walk.Line); });
      context_.controlPath.WriteLine(walk.Line, Lead::Blank);
      break;
    case StmtEndIf:
      ActOnEndIf(walk);
      break;
    case StmtElse:
      ActOnElse(walk);
      break;
    case StmtMake:
      SkipOnFailure([&] { context_.variables.Make(walk.Line); });
      Advance(walk);
      break;
    case StmtArithmetic:
      ActOnExpression(walk, "AEXP ");
      return;
    case StmtRelation:
      ActOnExpression(walk, "REXP ");
      return;
  }
  if (!walk.Over) context_.controlPath.Tidy();
}

// Must stay a function of its own, and return now and then: an engine of WebAssembly can't replace a function while it
// runs, so a loop over all lines would run a whole program in its first, hasty compilation.
[[gnu::noinline]] void Runner::RunStretch(Walk& walk) {
  constexpr int linesOfStretch = 100;
  for (int line = 0; line < linesOfStretch && GoesOn(walk); ++line) Act(walk);
}

inline void Runner::Advance(Walk& walk) { context_.controlPath.WriteLine(++walk.Line, Lead::Blank); }

void Runner::ActOnCall(Walk& walk) {
  SkipOnFailure([&] { walk.Name = context_.store.TakeFirstWord(walk.Line); });
  int callee = 0;
  SkipOnFailure([&] { callee = context_.store.WhereProcedure(walk.Name); });
  if (callee == 0) {
    // No message; the old number stays inside and the path grows.
    ++walk.Line;
    context_.controlPath.SetCtrlStr(context_.controlPath.CtrlStr() + "-" + Str(walk.Line));
    return;
  }
  SkipOnFailure([&] { inputs_.CreateLocalVariable(walk.Line); });
  const int call = walk.Line;
  walk.Line = callee + 1;
  context_.controlPath.Enter(call, walk.Name, walk.Line);
}

void Runner::ActOnTo(Walk& walk) { context_.controlPath.WriteLine(++walk.Line, Lead::None); }

void Runner::ActOnEnd(Walk& walk) {
  SkipOnFailure([&] { context_.controlPath.CurProcName = context_.controlPath.CurrentProcedureName(); });
  if (context_.controlPath.Leave()) {
    SkipOnFailure([&] { walk.Line = context_.controlPath.LineReached() + 1; });
    context_.controlPath.WriteLine(walk.Line, Lead::None);
  }
  SkipOnFailure([&] { inputs_.DeleteLocalVariable(context_.controlPath.CurProcName); });
}

inline void Runner::ActOnGoto(Walk& walk) {
  const int jump = walk.Line;
  SkipOnFailure([&] { walk.Line = conditionals_.LabelOf(jump); });
  if (walk.Line == 0) return TellUndeclaredLabel(walk, jump);
  context_.controlPath.WriteLine(walk.Line, Lead::None);
}

void Runner::TellUndeclaredLabel(Walk& walk, int jump) {
  std::string_view label;
  SkipOnFailure([&] { label = NameOfLabel(context_.store.Line(jump)); });
  context_.services.MessageBox("UnDeclared Label: " + std::string(label) + " in Goto Statement");
  walk.Over = true;
}

inline void Runner::ActOnLabel(Walk& walk) {
  // From the text and not from the counter: after an ENDIF the text is one ahead, and a line is skipped.
  SkipOnFailure([&] { walk.Line = context_.controlPath.LineReached() + 1; });
  context_.controlPath.WriteLine(walk.Line, Lead::None);
}

void Runner::ActOnEndIf(Walk& walk) {
  ++walk.Line;
  // One ahead of the counter.
  context_.controlPath.WriteLine(walk.Line + 1, Lead::Blank);
}

void Runner::ActOnElse(Walk& walk) {
  int ifs = 0;
  int endIfs = 0;
  for (int number = walk.Line; number <= Store::LineCount; ++number) {
    const StatementClass kind = context_.store.ClassOf(number);  // Never fails: there is such a line.
    if (kind == StmtIf) ++ifs;
    if (kind == StmtEndIf) ++endIfs;
    if (endIfs > ifs) {
      walk.Line = number + 1;
      context_.controlPath.WriteLine(walk.Line, Lead::Blank);
      return;
    }
    if (context_.store.Line(number).empty()) {  // Never fails.
      context_.services.MessageBox("Misplaced Else");
      context_.controlPath.SetCtrlStr(".");
      break;
    }
  }
  walk.Over = true;
}

void Runner::ActOnExpression(Walk& walk, std::string_view word) {
  // Only here does the tidying come before the act.
  context_.controlPath.Tidy();
  SkipOnFailure([&] { dispatch_.Execute(std::string(word) + context_.store.Line(walk.Line)); });
  Advance(walk);
}

}  // namespace zerimo
