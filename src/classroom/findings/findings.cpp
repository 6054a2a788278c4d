#include "classroom/findings/findings.h"

#include <algorithm>
#include <tuple>

#include "interpreter/store.h"

namespace zerimo::classroom {

namespace {

/// The characters of a line that the store does not keep, each once.
QString DroppedFrom(const QString& line) {
  QString dropped;
  for (const QChar character : line) {
    const bool isKept = character.unicode() >= 32 && character.unicode() <= 126;
    if (!isKept && character != u'\t' && !dropped.contains(character)) dropped += character;
  }
  return dropped;
}

bool IsBlank(const QString& line) { return !line.isEmpty() && line.count(u' ') == line.size(); }

void FindInFile(const Listing& listing, Findings& findings) {
  const int count = static_cast<int>(listing.Lines.size());
  for (int i = 0; i < count; ++i) {
    const QString& line = listing.Lines[i];
    const QString dropped = DroppedFrom(line);
    if (!dropped.isEmpty()) findings.push_back({Mistake::DroppedLetters, i + 1, {dropped}});
    if (line.contains(u'\t')) findings.push_back({Mistake::Tab, i + 1, {}});
    if (IsBlank(line) && i + 1 < count) findings.push_back({Mistake::BlankLine, i + 1, {}});
  }
  if (count > Store::LineCount) findings.push_back({Mistake::TooLong, Store::LineCount, {QString::number(count)}});
}

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
  for (const auto find : {FindInStatements, FindInNumbers, FindInRepeats, FindInWords, FindInNames, FindInProcedures,
                          FindInJumps, FindInPens, FindInFile}) {
    find(listing, findings);
  }
  for (Finding& each : findings) {
    for (QString& detail : each.Details) detail = listing.AsWritten(detail);
  }
  SortAndThin(findings);
  return findings;
}

}  // namespace zerimo::classroom
