#include "interpreter/runner.h"

#include <utility>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace {

bool NothingRuns(const std::string& path) { return path == "." || path == " " || path.empty(); }

}  // namespace

Runner::Runner(ProgramStore& programStore, ControlPath& controlPath, Dispatch& dispatcher, Variables& allVariables,
               Inputs& procedureInputs, Conditionals& theConditionals, Services& desktop, RunWatch& runWatch,
               Label& label19)
    : store(programStore),
      path(controlPath),
      dispatch(dispatcher),
      variables(allVariables),
      inputs(procedureInputs),
      conditionals(theConditionals),
      services(desktop),
      watch(runWatch),
      Label19(label19) {}

void Runner::Run1(std::string_view procedure) {
  Walk walk;
  PassOver([&] { walk.Line = store.WhereProcedure(procedure); });
  if (walk.Line != 0) {
    SetPath(path.CtrlStr() + std::string(procedure) + "-" + Str(walk.Line));
    // A walk past the end of the store has nothing left to run.
    while (!NothingRuns(path.CtrlStr()) && !walk.Over && walk.Line <= ProgramStore::LineCount) {
      watch.Step();
      PassOver([&] { walk.Class = store.ClassOf(walk.Line); });
      Act(walk);
    }
  }
  Label19.Caption = path.CtrlStr();
}

void Runner::SetPath(std::string text) {
  path.SetCtrlStr(std::move(text));
  // Seen while a box holds the run.
  Label19.Caption = path.CtrlStr();
}

void Runner::Act(Walk& walk) {
  switch (walk.Class) {
    case StmtPrimitive:
      PassOver([&] {
        store.TrimLine(walk.Line);
        dispatch.Execute(store.Line(walk.Line));
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
      PassOver([&] { walk.Line = conditionals.Ifprocessor(walk.Line); });
      WriteLineBlank(walk.Line);
      break;
    case StmtEndIf:
      ActOnEndIf(walk);
      break;
    case StmtElse:
      ActOnElse(walk);
      break;
    case StmtMake:
      PassOver([&] { variables.VariableUpdate(walk.Line); });
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
  PassOver([&] {
    LentLine line(store, walk.Line);
    walk.Name = GiveWord(line.Text, 1);
  });
  int callee = 0;
  PassOver([&] { callee = store.WhereProcedure(walk.Name); });
  if (callee == 0) {
    // No message; the old number stays inside and the path grows.
    ++walk.Line;
    SetPath(path.CtrlStr() + "-" + Str(walk.Line));
    return;
  }
  PassOver([&] { inputs.CreateLocalVariable(store.Line(walk.Line)); });
  SetPath(FirstPartExtractor(path.CtrlStr()) + Str(walk.Line) + "." + walk.Name);
  walk.Line = callee + 1;
  SetPath(path.CtrlStr() + "-" + Str(walk.Line));
}

void Runner::ActOnTo(Walk& walk) {
  ++walk.Line;
  WriteLinePlain(walk.Line);
}

void Runner::ActOnEnd(Walk& walk) {
  PassOver([&] { path.CurProcName = path.CurrentProcedureName(); });
  const int dot = LastPositionOf(path.CtrlStr(), '.');
  if (dot <= 1) {
    SetPath(".");
  } else {
    SetPath(std::string(Left(path.CtrlStr(), dot - 1)));
    PassOver([&] { walk.Line = EndValExtractor(path.CtrlStr()) + 1; });
    WriteLinePlain(walk.Line);
  }
  PassOver([&] { inputs.DeleteLocalVariable(path.CurProcName); });
}

void Runner::ActOnGoto(Walk& walk) {
  const std::string firstPart = FirstPartExtractor(path.CtrlStr());
  std::string label;
  PassOver([&] { label = From(store.Line(walk.Line), 6); });
  PassOver([&] { walk.Line = conditionals.LabelPos(label); });
  if (walk.Line == 0) {
    services.MessageBox("UnDeclared Label: " + label + " in Goto Statement");
    walk.Over = true;
    return;
  }
  SetPath(std::string(Trimmed(firstPart)) + StrTrimmed(walk.Line));
}

void Runner::ActOnLabel(Walk& walk) {
  // From the text and not from the counter: behind an ENDIF the text is one ahead, and a line is skipped.
  PassOver([&] { walk.Line = EndValExtractor(path.CtrlStr()) + 1; });
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
  for (int number = walk.Line; number <= ProgramStore::LineCount; ++number) {
    if (store.ClassOf(number) == StmtIf) ++ifs;
    if (store.ClassOf(number) == StmtEndIf) ++endIfs;
    if (endIfs > ifs) {
      walk.Line = number + 1;
      WriteLineBlank(walk.Line);
      return;
    }
    if (store.Line(number).empty()) {
      services.MessageBox("Misplaced Else");
      SetPath(".");
      break;
    }
  }
  walk.Over = true;
}

void Runner::ActOnExpression(Walk& walk, std::string_view word) {
  // Here alone the tidying comes before the act.
  Tidy();
  PassOver([&] { dispatch.Execute(std::string(word) + store.Line(walk.Line)); });
  Advance(walk);
}

void Runner::Tidy() {
  if (path.CtrlStr() == "1") SetPath(".");
  std::string text(Trimmed(path.CtrlStr()));
  PassOver([&] { text = RecursionChecker(text); });
  SetPath(std::move(text));
}

void Runner::WriteLineBlank(int line) { SetPath(FirstPartExtractor(path.CtrlStr()) + Str(line)); }

void Runner::WriteLinePlain(int line) { SetPath(FirstPartExtractor(path.CtrlStr()) + StrTrimmed(line)); }

}  // namespace zerimo
