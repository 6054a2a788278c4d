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
    : store_(programStore),
      path_(controlPath),
      dispatch_(dispatcher),
      variables_(allVariables),
      inputs_(procedureInputs),
      conditionals_(theConditionals),
      services_(desktop),
      watch_(runWatch),
      Label19(label19) {}

void Runner::Run1(std::string_view procedure) {
  Walk walk;
  PassOver([&] { walk.Line = store_.WhereProcedure(procedure); });
  if (walk.Line != 0) {
    SetPath(path_.CtrlStr() + std::string(procedure) + "-" + Str(walk.Line));
    // A walk past the end of the store has nothing left to run.
    while (!NothingRuns(path_.CtrlStr()) && !walk.Over && walk.Line <= ProgramStore::LineCount) {
      watch_.Step();
      PassOver([&] { walk.Class = store_.ClassOf(walk.Line); });
      Act(walk);
    }
  }
  Label19.Caption = path_.CtrlStr();
}

void Runner::SetPath(std::string text) {
  path_.SetCtrlStr(std::move(text));
  // Seen while a box holds the run.
  Label19.Caption = path_.CtrlStr();
}

void Runner::Act(Walk& walk) {
  switch (walk.Class) {
    case StmtPrimitive:
      PassOver([&] {
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
      PassOver([&] { walk.Line = conditionals_.Ifprocessor(walk.Line); });
      WriteLineBlank(walk.Line);
      break;
    case StmtEndIf:
      ActOnEndIf(walk);
      break;
    case StmtElse:
      ActOnElse(walk);
      break;
    case StmtMake:
      PassOver([&] { variables_.VariableUpdate(walk.Line); });
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
    LentLine line(store_, walk.Line);
    walk.Name = GiveWord(line.Text, 1);
  });
  int callee = 0;
  PassOver([&] { callee = store_.WhereProcedure(walk.Name); });
  if (callee == 0) {
    // No message; the old number stays inside and the path grows.
    ++walk.Line;
    SetPath(path_.CtrlStr() + "-" + Str(walk.Line));
    return;
  }
  PassOver([&] { inputs_.CreateLocalVariable(store_.Line(walk.Line)); });
  SetPath(FirstPartExtractor(path_.CtrlStr()) + Str(walk.Line) + "." + walk.Name);
  walk.Line = callee + 1;
  SetPath(path_.CtrlStr() + "-" + Str(walk.Line));
}

void Runner::ActOnTo(Walk& walk) {
  ++walk.Line;
  WriteLinePlain(walk.Line);
}

void Runner::ActOnEnd(Walk& walk) {
  PassOver([&] { path_.CurProcName = path_.CurrentProcedureName(); });
  const int dot = LastPositionOf(path_.CtrlStr(), '.');
  if (dot <= 1) {
    SetPath(".");
  } else {
    SetPath(std::string(Left(path_.CtrlStr(), dot - 1)));
    PassOver([&] { walk.Line = EndValExtractor(path_.CtrlStr()) + 1; });
    WriteLinePlain(walk.Line);
  }
  PassOver([&] { inputs_.DeleteLocalVariable(path_.CurProcName); });
}

void Runner::ActOnGoto(Walk& walk) {
  const std::string firstPart = FirstPartExtractor(path_.CtrlStr());
  std::string label;
  PassOver([&] { label = From(store_.Line(walk.Line), 6); });
  PassOver([&] { walk.Line = conditionals_.LabelPos(label); });
  if (walk.Line == 0) {
    services_.MessageBox("UnDeclared Label: " + label + " in Goto Statement");
    walk.Over = true;
    return;
  }
  SetPath(std::string(Trimmed(firstPart)) + StrTrimmed(walk.Line));
}

void Runner::ActOnLabel(Walk& walk) {
  // From the text and not from the counter: behind an ENDIF the text is one ahead, and a line is skipped.
  PassOver([&] { walk.Line = EndValExtractor(path_.CtrlStr()) + 1; });
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
  PassOver([&] { dispatch_.Execute(std::string(word) + store_.Line(walk.Line)); });
  Advance(walk);
}

void Runner::Tidy() {
  if (path_.CtrlStr() == "1") SetPath(".");
  std::string text(Trimmed(path_.CtrlStr()));
  PassOver([&] { text = RecursionChecker(text); });
  SetPath(std::move(text));
}

void Runner::WriteLineBlank(int line) { SetPath(FirstPartExtractor(path_.CtrlStr()) + Str(line)); }

void Runner::WriteLinePlain(int line) { SetPath(FirstPartExtractor(path_.CtrlStr()) + StrTrimmed(line)); }

}  // namespace zerimo
