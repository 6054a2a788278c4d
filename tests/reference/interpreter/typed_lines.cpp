#include "reference/interpreter/typed_lines.h"

#include "base/text.h"
#include "reference/base/numbers.h"

namespace zerimo::reference {

namespace {

/// The last line that moves down over a temporary procedure.
constexpr int LastMovedLine = 500;

}  // namespace

void TypedLines::ComplexExecutor(std::string& complexData) {
  TempProcNo = AddInt16(TempProcNo, 1);
  const int firstLine = WriteTemporaryProcedure(complexData);
  lowering_.RemoveAllRepeats();
  runner_.Run1(TemporaryName());
  RemoveTemporaryProcedure(firstLine);
  store_.RefreshFileDataArray();
  variables_.CreateGlobalVariable();
  // Listing also trims away the blanks that the run has left in the store.
  ListStore(store_, List1);
  store_.ProcedureList();
}

int TypedLines::WriteTemporaryProcedure(std::string& complexData) {
  const int firstLine = store_.FirstEmptyLine();
  store_.SetLine(firstLine, "TO " + TemporaryName());
  Trim(complexData);
  const BodyArray statements = lowering_.CreateBodyArray(complexData);
  int count = 1;
  for (; !statements.At(count).empty(); ++count) store_.SetLine(firstLine + count, statements.At(count));
  store_.SetLine(firstLine + count, "END");
  return firstLine;
}

void TypedLines::RemoveTemporaryProcedure(int firstLine) {
  int end = firstLine;
  while (store_.Line(end) != "END") ++end;
  int target = firstLine;
  // The test is for equality and comes after the move: an END at line 500 or later moves on to the end of the store and
  // fails there, so that nothing is refreshed.
  do {
    store_.SetLine(target, store_.Line(end + 1));
    ++target;
    ++end;
  } while (end != LastMovedLine);
}

}  // namespace zerimo::reference
