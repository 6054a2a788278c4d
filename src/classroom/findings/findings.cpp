#include "classroom/findings/findings.h"

#include <algorithm>
#include <tuple>

namespace zerimo::classroom {

namespace {

bool IsOneLine(const QString& program) { return program.contains(u'\n') && !program.contains(u'\r'); }

void SortAndThin(Findings& findings) {
  const auto key = [](const Finding& one) { return std::make_tuple(one.Line, one.What, one.Details); };
  std::ranges::stable_sort(findings, {}, key);
  findings.erase(std::unique(findings.begin(), findings.end()), findings.end());
}

}  // namespace

Findings FindingsIn(const QString& program) {
  if (program.isEmpty()) return {{Mistake::Empty, 0, {}}};
  if (IsOneLine(program)) return {{Mistake::OneLine, 0, {}}};
  const Listing listing(program);
  Findings findings;
  for (const auto find : {FindInStatements, FindInRepeats, FindInWords, FindInNames, FindInProcedures, FindInJumps,
                          FindInPens, FindInFile}) {
    find(listing, findings);
  }
  SortAndThin(findings);
  return findings;
}

}  // namespace zerimo::classroom
