#include "interpreter/typed_lines.h"

#include "base/numbers.h"
#include "base/text.h"

namespace zerimo {

namespace {

/// The last line that moves down over a temporary procedure.
constexpr int LastMovedLine = 500;

}  // namespace

void TypedLines::ComplexExecutor(std::string& complexData) {
  TempProcNo = AddInt16(TempProcNo, 1);
  const int firstLine = WriteTemporaryProcedure(complexData);
  lowering.RemoveAllRepeats();
  runner.Run1(TemporaryName());
  RemoveTemporaryProcedure(firstLine);
  store.RefreshFileDataArray();
  variables.CreateGlobalVariable();
  // The trimming takes away the blanks that the run has left on lines of the store.
  ListStore(store, List1);
  store.ProcedureList();
}

int TypedLines::WriteTemporaryProcedure(std::string& complexData) {
  const int firstLine = store.FirstEmptyLine();
  store.SetLine(firstLine, "TO " + TemporaryName());
  Trim(complexData);
  const BodyArray statements = lowering.CreateBodyArray(complexData);
  int count = 1;
  for (; !statements.At(count).empty(); ++count) store.SetLine(firstLine + count, statements.At(count));
  store.SetLine(firstLine + count, "END");
  return firstLine;
}

void TypedLines::RemoveTemporaryProcedure(int firstLine) {
  int end = firstLine;
  while (store.Line(end) != "END") ++end;
  int target = firstLine;
  // The test is for equality and comes after the move: an END at line 500 or behind moves on to the end of the store
  // and fails there, so that nothing is refreshed.
  do {
    store.SetLine(target, store.Line(end + 1));
    ++target;
    ++end;
  } while (end != LastMovedLine);
}

}  // namespace zerimo
