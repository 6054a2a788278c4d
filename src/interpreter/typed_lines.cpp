#include "interpreter/typed_lines.h"

#include "base/numbers.h"
#include "base/stop_run.h"
#include "base/text.h"
#include "interpreter/store.h"
#include "interpreter/variables.h"

namespace zerimo {

namespace {

/// The last line that moves down over a temporary procedure.
constexpr int LastMovedLine = 500;

}  // namespace

void TypedLines::ComplexExecutor(std::string& complexData) {
  TempProcNo = AddInt16(TempProcNo, 1);
  const int firstLine = WriteTemporaryProcedure(complexData);
  try {
    lowering_.RemoveAllRepeats();
    runner_.Run1(TemporaryName());
  } catch (const StopRun&) {
    // Stopped before the walk: the steps after it are carried out all the same.
  }
  RemoveTemporaryProcedure(firstLine);
  context_.store.RefreshFileDataArray();
  context_.variables.CreateGlobalVariable();
  // Listing also trims away the blanks that the run has left in the store.
  ListStore(context_.store, context_.controls.List1);
  context_.store.ProcedureList();
}

int TypedLines::WriteTemporaryProcedure(std::string& complexData) {
  const int firstLine = context_.store.FirstEmptyLine();
  context_.store.SetLine(firstLine, "TO " + TemporaryName());
  Trim(complexData);
  const BodyArray statements = lowering_.CreateBodyArray(complexData);
  int count = 1;
  for (; !statements.At(count).empty(); ++count) context_.store.SetLine(firstLine + count, statements.At(count));
  context_.store.SetLine(firstLine + count, "END");
  return firstLine;
}

void TypedLines::RemoveTemporaryProcedure(int firstLine) {
  int end = firstLine;
  while (context_.store.Line(end) != "END") ++end;
  int target = firstLine;
  // The test is for equality and comes after the move: an END at line 500 or later moves on to the end of the store and
  // fails there, so that nothing is refreshed.
  do {
    context_.store.SetLine(target, context_.store.Line(end + 1));
    ++target;
    ++end;
  } while (end != LastMovedLine);
}

}  // namespace zerimo
