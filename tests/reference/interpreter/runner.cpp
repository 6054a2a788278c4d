#include "reference/interpreter/runner.h"

#include <utility>

#include "base/failure.h"
#include "base/text.h"
#include "reference/base/numbers.h"
#include "reference/interpreter/line_entry.h"

namespace zerimo::reference {

namespace {

bool NothingRuns(const std::string& path) { return path == "." || path == " " || path.empty(); }

}  // namespace

Runner::Runner(const ProgramContext& context, Dispatch& dispatch, Inputs& inputs, Conditionals& conditionals)
    : store_(context.store),
      controlPath_(context.controlPath),
      dispatch_(dispatch),
      variables_(context.variables),
      inputs_(inputs),
      conditionals_(conditionals),
      services_(context.around.services),
      watch_(context.around.watch),
      Label19(context.around.controls.Label19) {}

void Runner::Run1(std::string_view procedure) {
  Walk walk;
  SkipOnFailure([&] { walk.Line = store_.WhereProcedure(procedure); });
  if (walk.Line != 0) {
    SetPath(controlPath_.CtrlStr() + std::string(procedure) + "-" + Str(walk.Line));
    // A walk past the end of the store has nothing left to run.
    while (!NothingRuns(controlPath_.CtrlStr()) && !walk.Over && walk.Line <= Store::LineCount) {
      watch_.Step();
      SkipOnFailure([&] { walk.Class = store_.ClassOf(walk.Line); });
      Act(walk);
    }
  }
  Label19.Caption = controlPath_.CtrlStr();
}

void Runner::SetPath(std::string text) {
  controlPath_.SetCtrlStr(std::move(text));
  // For the user to see while a box is open.
  Label19.Caption = controlPath_.CtrlStr();
}

void Runner::Act(Walk& walk) {
  switch (walk.Class) {
    case StmtPrimitive:
      SkipOnFailure([&] {
        store_.TrimLine(walk.Line);
        dispatch_.Execute(store_.Line(walk.Line));
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
      WriteLineBlank(walk.Line);
      break;
    case StmtEndIf:
      ActOnEndIf(walk);
      break;
    case StmtElse:
      ActOnElse(walk);
      break;
    case StmtMake:
      SkipOnFailure([&] { variables_.VariableUpdate(walk.Line); });
      Advance(walk);
      break;
    case StmtArithmetic:
      ActOnExpression(walk, "AEXP ");
      return;
    case StmtRelation:
      ActOnExpression(walk, "REXP ");
      return;
  }
  if (!walk.Over) Tidy();
}

void Runner::Advance(Walk& walk) {
  ++walk.Line;
  WriteLineBlank(walk.Line);
}

void Runner::ActOnCall(Walk& walk) {
  SkipOnFailure([&] {
    LentLine line(store_, walk.Line);
    walk.Name = GiveWord(line.Text, 1);
  });
  int callee = 0;
  SkipOnFailure([&] { callee = store_.WhereProcedure(walk.Name); });
  if (callee == 0) {
    // No message; the old number stays inside and the path grows.
    ++walk.Line;
    SetPath(controlPath_.CtrlStr() + "-" + Str(walk.Line));
    return;
  }
  SkipOnFailure([&] { inputs_.CreateLocalVariable(store_.Line(walk.Line)); });
  SetPath(FirstPartExtractor(controlPath_.CtrlStr()) + Str(walk.Line) + "." + walk.Name);
  walk.Line = callee + 1;
  SetPath(controlPath_.CtrlStr() + "-" + Str(walk.Line));
}

void Runner::ActOnTo(Walk& walk) {
  ++walk.Line;
  WriteLinePlain(walk.Line);
}

void Runner::ActOnEnd(Walk& walk) {
  SkipOnFailure([&] { controlPath_.CurProcName = controlPath_.CurrentProcedureName(); });
  const int dot = LastPositionOf(controlPath_.CtrlStr(), '.');
  if (dot <= 1) {
    SetPath(".");
  } else {
    SetPath(std::string(Left(controlPath_.CtrlStr(), dot - 1)));
    SkipOnFailure([&] { walk.Line = EndValExtractor(controlPath_.CtrlStr()) + 1; });
    WriteLinePlain(walk.Line);
  }
  SkipOnFailure([&] { inputs_.DeleteLocalVariable(controlPath_.CurProcName); });
}

void Runner::ActOnGoto(Walk& walk) {
  const std::string firstPart = FirstPartExtractor(controlPath_.CtrlStr());
  std::string label;
  SkipOnFailure([&] { label = From(store_.Line(walk.Line), 6); });
  SkipOnFailure([&] { walk.Line = conditionals_.LabelPos(label); });
  if (walk.Line == 0) {
    services_.MessageBox("UnDeclared Label: " + label + " in Goto Statement");
    walk.Over = true;
    return;
  }
  SetPath(std::string(Trimmed(firstPart)) + StrTrimmed(walk.Line));
}

void Runner::ActOnLabel(Walk& walk) {
  // From the text and not from the counter: after an ENDIF the text is one ahead, and a line is skipped.
  SkipOnFailure([&] { walk.Line = EndValExtractor(controlPath_.CtrlStr()) + 1; });
  WriteLinePlain(walk.Line);
}

void Runner::ActOnEndIf(Walk& walk) {
  ++walk.Line;
  // One ahead of the counter.
  WriteLineBlank(walk.Line + 1);
}

void Runner::ActOnElse(Walk& walk) {
  int ifs = 0;
  int endIfs = 0;
  for (int number = walk.Line; number <= Store::LineCount; ++number) {
    if (store_.ClassOf(number) == StmtIf) ++ifs;
    if (store_.ClassOf(number) == StmtEndIf) ++endIfs;
    if (endIfs > ifs) {
      walk.Line = number + 1;
      WriteLineBlank(walk.Line);
      return;
    }
    if (store_.Line(number).empty()) {
      services_.MessageBox("Misplaced Else");
      SetPath(".");
      break;
    }
  }
  walk.Over = true;
}

void Runner::ActOnExpression(Walk& walk, std::string_view word) {
  // Here alone the tidying comes before the act.
  Tidy();
  SkipOnFailure([&] { dispatch_.Execute(std::string(word) + store_.Line(walk.Line)); });
  Advance(walk);
}

void Runner::Tidy() {
  if (controlPath_.CtrlStr() == "1") SetPath(".");
  std::string text(Trimmed(controlPath_.CtrlStr()));
  SkipOnFailure([&] { text = RecursionChecker(text); });
  SetPath(std::move(text));
}

void Runner::WriteLineBlank(int line) { SetPath(FirstPartExtractor(controlPath_.CtrlStr()) + Str(line)); }

void Runner::WriteLinePlain(int line) { SetPath(FirstPartExtractor(controlPath_.CtrlStr()) + StrTrimmed(line)); }

}  // namespace zerimo::reference
