/// Program files: `LOAD`, the outline that finds the procedure to call, what is suspicious in it, and its run.

#include <algorithm>

#include "classroom/findings/findings.h"
#include "classroom/program_source.h"
#include "folder_of_its_own.h"
#include "fuzz.h"
#include "memory_session.h"

namespace zerimo::fuzz {

namespace {

bool IsKept(char character) { return character >= ' ' && character <= '~'; }

void CheckStore(const Store& store) {
  for (int number = 1; number <= Store::LineCount; ++number) Require(std::ranges::all_of(store.Line(number), IsKept));
}

}  // namespace

void Try(std::string_view input) {
  static const FolderOfItsOwn folder;
  folder.Write("A.ZRM", input);
  const std::string text(input);
  const QString program = classroom::TextOfProgram(text);
  classroom::FindingsIn(program);
  const classroom::FirstCall first = classroom::ProgramOutline(text).FirstCallOf("A");
  MemorySession session(Disk::Confined("/there is no such folder", folder.Path()));
  batch::Script script{{1, batch::action::TypeLine{"LOAD A"}}};
  session.Session().Run(script);
  CheckStore(session.Session().form1.interpreter.store);
  classroom::ProgramSource source(program);
  source.Match(session.Session().form1.interpreter.store);
  Require(source.Lines.size() <= classroom::ProgramSource::MostLines);
  if (first.Procedure.empty()) return;
  MemorySession other(Disk::Confined("/there is no such folder", folder.Path()));
  script.push_back({2, batch::action::TypeLine{first.Procedure}});
  other.Session().Run(script);
}

}  // namespace zerimo::fuzz
