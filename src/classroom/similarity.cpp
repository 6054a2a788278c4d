#include "classroom/similarity.h"

#include <QHash>
#include <algorithm>
#include <functional>
#include <utility>

#include "classroom/findings/listing.h"

namespace zerimo::classroom {

namespace {

/// Lines that every program has.
bool IsCommon(const QString& bare) {
  using enum Action;
  static const QString head = NameOf(IsOneOf<StmtTo>) + " n";
  return bare.isEmpty() || bare == head ||
         IsOneOf<StmtEnd, StmtEndIf, ClearScreen, HideTurtle, PenUp, PenDown>(KnownWord(bare));
}

/// How often each bare line occurs in a text.
QHash<QString, int> CountsOf(const QStringList& lines) {
  QHash<QString, int> counts;
  for (const QString& line : lines) {
    const QString bare = Bare(line);
    if (!IsCommon(bare)) ++counts[bare];
  }
  return counts;
}

struct Fingerprint {
  QHash<QString, int> Counts;
  int Lines = 0;
};

QStringList TextsOf(const PupilRun& run) {
  QStringList texts;
  for (const SourceLine& line : run.Went.Source) texts.append(line.Text);
  return texts;
}

Fingerprint FingerprintOf(const PupilRun& run, const QHash<QString, int>& given) {
  Fingerprint print{CountsOf(TextsOf(run)), 0};
  for (auto each = given.cbegin(); each != given.cend(); ++each) {
    if (print.Counts.contains(each.key()))
      print.Counts[each.key()] = std::max(0, print.Counts[each.key()] - each.value());
  }
  for (const int count : std::as_const(print.Counts)) print.Lines += count;
  return print;
}

int SharedLines(const Fingerprint& one, const Fingerprint& other) {
  int shared = 0;
  for (auto each = one.Counts.cbegin(); each != one.Counts.cend(); ++each)
    shared += std::min(each.value(), other.Counts.value(each.key()));
  return shared;
}

QStringList MatchingLines(const PupilRun& run, const Fingerprint& own, const Fingerprint& other) {
  QStringList lines;
  for (const QString& text : TextsOf(run)) {
    const QString bare = Bare(text);
    if (own.Counts.value(bare) > 0 && other.Counts.value(bare) > 0) lines.append(text.simplified());
  }
  return lines;
}

}  // namespace

QString Bare(const QString& line) {
  static const QRegularExpression quoted = ExpressionOf("(?<!@ )\"[^\"]*\"", IsOneOf<StmtMake>);
  static const QRegularExpression word("[A-Z][A-Z0-9_]*|[:\"][A-Z0-9]+|\\d+(?:\\.\\d+)?");
  const QString text = line.toUpper().simplified().replace(quoted, "t");
  QString bare;
  qsizetype end = 0;
  for (auto walk = word.globalMatch(text); walk.hasNext();) {
    const auto match = walk.next();
    bare += text.mid(end, match.capturedStart() - end);
    bare += IsKnownWord(match.captured()) ? match.captured() : QStringLiteral("n");
    end = match.capturedEnd();
  }
  return bare + text.mid(end);
}

std::vector<AlikePair> AlikePairs(const std::vector<PupilRun>& runs, const QString& given) {
  const QHash<QString, int> givenCounts = CountsOf(LinesOf(given));
  std::vector<Fingerprint> prints;
  for (const PupilRun& run : runs) prints.push_back(FingerprintOf(run, givenCounts));
  std::vector<AlikePair> pairs;
  for (std::size_t i = 0; i < runs.size(); ++i) {
    for (std::size_t j = i + 1; j < runs.size(); ++j) {
      const int fewer = std::min(prints[i].Lines, prints[j].Lines);
      const int more = std::max(prints[i].Lines, prints[j].Lines);
      // A short program that a long one happens to contain is not a copy.
      if (fewer < FewestLines || more > 2 * fewer) continue;
      const double percent = 100.0 * SharedLines(prints[i], prints[j]) / fewer;
      if (percent >= LeastAlike) pairs.push_back({i, j, percent, MatchingLines(runs[i], prints[i], prints[j])});
    }
  }
  std::ranges::stable_sort(pairs, std::greater(), &AlikePair::Percent);
  return pairs;
}

}  // namespace zerimo::classroom
