#include "classroom/similarity.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <tuple>
#include <utility>

#include "classroom/findings/listing.h"

namespace zerimo::classroom {

namespace {

/// What is compared of a long program.
constexpr qsizetype MostLinesCompared = 400;

/// Lines that every program has.
bool IsCommon(const QString& bare) {
  using enum Action;
  static const QString head = NameOf(IsOneOf<StmtTo>) + " n";
  return bare.isEmpty() || bare == head ||
         IsOneOf<StmtEnd, StmtEndIf, ClearScreen, HideTurtle, PenUp, PenDown>(KnownWord(bare));
}

quint32 PrintOf(const QString& bare) { return static_cast<quint32>(qHash(bare, 0)); }

/// The prints of lines in ascending order, as often as they occur.
std::vector<quint32> PrintsOfLines(const QStringList& lines) {
  std::vector<quint32> prints;
  for (const QString& line : lines.first(std::min(lines.size(), MostLinesCompared))) {
    const QString bare = Bare(line);
    if (!IsCommon(bare)) prints.push_back(PrintOf(bare));
  }
  std::ranges::sort(prints);
  return prints;
}

QStringList TextsOf(const PupilRun& run) {
  QStringList texts;
  for (const SourceLine& line : run.Went.Source) texts.append(line.Text);
  return texts;
}

std::size_t CountShared(std::span<const quint32> one, std::span<const quint32> other) {
  std::size_t shared = 0;
  for (auto left = one.begin(), right = other.begin(); left != one.end() && right != other.end();) {
    if (*left == *right) ++shared;
    const bool goLeft = *left <= *right;
    const bool goRight = *right <= *left;
    if (goLeft) ++left;
    if (goRight) ++right;
  }
  return shared;
}

/// Finds programs that have a rare line, or all their lines, in common.
class RareLines {
 public:
  void Add(std::size_t program, std::span<const quint32> prints) {
    const auto number = static_cast<quint32>(program);
    for (const quint32 print : SampleOf(prints)) lines_.emplace_back(print, number);
    wholes_.emplace_back(PrintOfAll(prints), number);
  }

  void Close() {
    std::ranges::sort(lines_);
    std::ranges::sort(wholes_);
  }

  /// The later programs that a program has to be compared with. Call `Close` first.
  std::vector<std::size_t> Partners(std::size_t program, std::span<const quint32> prints) const {
    const auto number = static_cast<quint32>(program);
    std::vector<std::size_t> partners;
    for (const quint32 print : SampleOf(prints)) {
      const auto begin = std::ranges::lower_bound(lines_, print, {}, &Row::first);
      const auto end = std::ranges::upper_bound(lines_, print, {}, &Row::first);
      if (static_cast<std::size_t>(end - begin) > AlikeSearch::FewPrograms) continue;
      for (auto row = begin; row != end; ++row) {
        if (row->second > number) partners.push_back(row->second);
      }
    }
    const quint32 all = PrintOfAll(prints);
    const auto next = std::ranges::upper_bound(wholes_, Row(all, number));
    if (next != wholes_.end() && next->first == all) partners.push_back(next->second);
    std::ranges::sort(partners);
    partners.erase(std::unique(partners.begin(), partners.end()), partners.end());
    return partners;
  }

 private:
  /// A print, and a program that has it.
  using Row = std::pair<quint32, quint32>;

  /// The smallest prints, each once: the same sample of the lines of every program.
  static std::vector<quint32> SampleOf(std::span<const quint32> prints) {
    constexpr std::size_t most = 32;
    std::vector<quint32> sample;
    for (const quint32 print : prints) {
      if (sample.size() == most) break;
      if (sample.empty() || sample.back() != print) sample.push_back(print);
    }
    return sample;
  }

  static quint32 PrintOfAll(std::span<const quint32> prints) {
    return std::accumulate(prints.begin(), prints.end(), quint32{0},
                           [](quint32 sum, quint32 print) { return sum * 31 + print; });
  }

  std::vector<Row> lines_;
  std::vector<Row> wholes_;
};

void KeepBest(std::vector<AlikePair>& pairs) {
  std::ranges::sort(pairs, [](const AlikePair& one, const AlikePair& other) {
    return std::tuple(other.Percent, other.Lines, one.One, one.Other) <
           std::tuple(one.Percent, one.Lines, other.One, other.Other);
  });
  if (pairs.size() > AlikeSearch::MostPairs) pairs.resize(AlikeSearch::MostPairs);
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

AlikeSearch::AlikeSearch(const QString& given) : given_(PrintsOfLines(LinesOf(given))) {}

AlikeSearch::Prints AlikeSearch::OwnPrints(const PupilRun& run) const {
  Prints own;
  std::ranges::set_difference(PrintsOfLines(TextsOf(run)), given_, std::back_inserter(own));
  return own;
}

void AlikeSearch::Add(const PupilRun& run) {
  const Prints own = OwnPrints(run);
  prints_.insert(prints_.end(), own.begin(), own.end());
  ends_.push_back(prints_.size());
}

std::span<const quint32> AlikeSearch::PrintsOf(std::size_t program) const {
  const std::size_t begin = program == 0 ? 0 : ends_[program - 1];
  return std::span(prints_).subspan(begin, ends_[program] - begin);
}

void AlikeSearch::AddPair(std::size_t one, std::size_t other, std::vector<AlikePair>& pairs) const {
  const auto [fewer, more] = std::minmax({PrintsOf(one).size(), PrintsOf(other).size()});
  // A short program that a long one happens to contain is not a copy.
  if (fewer < FewestLines || more > 2 * fewer) return;
  const std::size_t shared = CountShared(PrintsOf(one), PrintsOf(other));
  const double percent = 100.0 * static_cast<double>(shared) / static_cast<double>(fewer);
  if (percent >= LeastAlike) pairs.push_back({one, other, percent, shared});
  if (pairs.size() == 2 * MostPairs) KeepBest(pairs);
}

std::vector<AlikePair> AlikeSearch::Pairs() const {
  std::vector<AlikePair> pairs;
  RareLines rare;
  const bool isLarge = ends_.size() > MostComparedWithAll;
  for (std::size_t i = 0; isLarge && i < ends_.size(); ++i) {
    if (PrintsOf(i).size() >= FewestLines) rare.Add(i, PrintsOf(i));
  }
  rare.Close();
  for (std::size_t i = 0; i < ends_.size(); ++i) {
    for (std::size_t j = i + 1; !isLarge && j < ends_.size(); ++j) AddPair(i, j, pairs);
    for (const std::size_t j : rare.Partners(i, PrintsOf(i))) AddPair(i, j, pairs);
  }
  KeepBest(pairs);
  return pairs;
}

QStringList AlikeSearch::SharedLines(const PupilRun& one, const PupilRun& other) const {
  Prints shared;
  std::ranges::set_intersection(OwnPrints(one), OwnPrints(other), std::back_inserter(shared));
  QStringList lines;
  for (const QString& text : TextsOf(one)) {
    if (std::ranges::binary_search(shared, PrintOf(Bare(text)))) lines.append(text.simplified());
  }
  return lines;
}

}  // namespace zerimo::classroom
