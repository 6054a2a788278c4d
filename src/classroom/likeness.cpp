#include "classroom/likeness.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "classroom/findings/known_words.h"

namespace zerimo::classroom {

namespace {

/// What is compared of a long program.
constexpr qsizetype MostLinesCompared = 400;

/// Smaller shares, in per cent, mean nothing.
constexpr double LeastInAnyOrder = 80;
constexpr double LeastBesideEachOther = 70;
constexpr double LeastInOrder = 90;

/// How many different lines two programs must have in common.
constexpr std::size_t FewestKinds = 8;
/// The same if they have all their lines in common.
constexpr std::size_t FewestKindsOfAll = 6;
/// The same if the lines are compared with their numbers.
constexpr std::size_t FewestKindsAsWritten = 5;
/// With fewer lines, the usual solution of a small task would be a copy.
constexpr std::size_t FewestLinesAsWritten = 7;
/// A line that is there again and again says little: how often each common line may be there, on average.
constexpr std::size_t MostOfAKind = 3;

/// A line without what someone who copies would change, and with its numbers.
struct StrippedLine {
  QString Bare;
  QString AsWritten;
};

StrippedLine Stripped(const QString& line) {
  static const QRegularExpression quoted = ExpressionOf("(?<!@ )\"[^\"]*\"", IsOneOf<StmtMake>);
  static const QRegularExpression word(R"([A-Z][A-Z0-9_]*|[:"][A-Z0-9]+|\d+(?:\.\d+)?)");
  QString text = line.toUpper().simplified();
  if (text.contains(u'"')) text.replace(quoted, "t");
  StrippedLine stripped;
  const auto add = [&stripped](const QString& bare, const QString& written) {
    stripped.Bare += bare;
    stripped.AsWritten += written;
  };
  qsizetype end = 0;
  for (auto walk = word.globalMatch(text); walk.hasNext();) {
    const auto match = walk.next();
    const QString between = text.mid(end, match.capturedStart() - end);
    add(between, between);
    const WordFacts* const known = KnownWord(match.captured());
    const QString bare = known == nullptr ? QStringLiteral("n") : FirstNameOf(*known);
    add(bare, match.captured().front().isDigit() ? match.captured() : bare);
    end = match.capturedEnd();
  }
  add(text.mid(end), text.mid(end));
  return stripped;
}

const QString& Head() {
  static const QString head = NameOf(IsOneOf<StmtTo>) + u' ';
  return head;
}

/// Lines that every program has.
bool IsCommon(const QString& bare) {
  const bool isHead = bare.startsWith(Head()) && bare.lastIndexOf(u' ') < Head().size();
  return bare.isEmpty() || isHead || IsOneOf<StmtEnd, StmtEndIf, "CS", "HT", "PU", "PD">(KnownWord(bare));
}

quint32 PrintOf(const QString& text) { return static_cast<quint32>(qHash(text, 0)); }

double Share(std::size_t part, std::size_t whole) {
  return whole == 0 ? 0 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
}

/// What two ascending lists have in common.
struct Common {
  std::size_t Lines = 0;
  /// How many of them are different.
  std::size_t Kinds = 0;
};

Common CommonOf(std::span<const quint32> one, std::span<const quint32> other) {
  Common common;
  std::optional<quint32> last;
  for (auto left = one.begin(), right = other.begin(); left != one.end() && right != other.end();) {
    if (*left == *right) {
      ++common.Lines;
      if (last != *left) ++common.Kinds;
      last = *left;
    }
    const bool goLeft = *left <= *right;
    const bool goRight = *right <= *left;
    if (goLeft) ++left;
    if (goRight) ++right;
  }
  return common;
}

/// Prints of each line with the one above it in its procedure, whichever of the two comes first, in ascending order.
std::vector<quint32> NeighboursIn(std::span<const LinePrint> lines) {
  std::vector<quint32> prints;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const auto [lesser, greater] = std::minmax(lines[i - 1].OfBare, lines[i].OfBare);
    if (!lines[i].Begins) prints.push_back(static_cast<quint32>(qHashMulti(0, lesser, greater)));
  }
  std::ranges::sort(prints);
  return prints;
}

using Prints = quint32 LinePrint::*;

/// How many lines two programs have in common in the same order, or 0 if they are fewer than `least`.
std::size_t LinesInOrder(std::span<const LinePrint> one, std::span<const LinePrint> other, Prints prints,
                         std::size_t least) {
  std::vector<std::size_t> above(other.size() + 1), row(other.size() + 1);
  for (std::size_t i = 0; i < one.size(); ++i) {
    for (std::size_t j = 0; j < other.size(); ++j) {
      const bool same = one[i].*prints == other[j].*prints;
      row[j + 1] = same ? above[j] + 1 : std::max(above[j + 1], row[j]);
    }
    if (row.back() + (one.size() - 1 - i) < least) return 0;
    std::swap(above, row);
  }
  return above.back();
}

std::size_t KindsAsWritten(std::span<const LinePrint> one, std::span<const LinePrint> other) {
  const auto sorted = [](std::span<const LinePrint> lines) {
    std::vector<quint32> all;
    for (const LinePrint& line : lines) all.push_back(line.AsWritten);
    std::ranges::sort(all);
    return all;
  };
  return CommonOf(sorted(one), sorted(other)).Kinds;
}

bool AreAlikeInAnyOrder(const ProgramPrints& one, const ProgramPrints& other, const Common& common) {
  if (common.Lines == one.Sorted.size() && common.Lines == other.Sorted.size()) return common.Kinds >= FewestKindsOfAll;
  if (common.Kinds < FewestKinds || common.Kinds * MostOfAKind < common.Lines) return false;
  const std::vector<quint32> left = NeighboursIn(one.InOrder);
  const std::vector<quint32> right = NeighboursIn(other.InOrder);
  return Share(CommonOf(left, right).Lines, std::min(left.size(), right.size())) >= LeastBesideEachOther;
}

std::optional<Likeness> LikenessInOrder(const ProgramPrints& one, const ProgramPrints& other, Prints prints) {
  const std::size_t fewer = std::min(one.InOrder.size(), other.InOrder.size());
  const auto least = static_cast<std::size_t>(LeastInOrder / 100 * static_cast<double>(fewer));
  const std::size_t lines = LinesInOrder(one.InOrder, other.InOrder, prints, least);
  if (Share(lines, fewer) < LeastInOrder) return std::nullopt;
  return Likeness{Share(lines, fewer), lines};
}

}  // namespace

QString Bare(const QString& line) { return Stripped(line).Bare; }

std::vector<quint32> BarePrintsOf(const QStringList& lines) {
  std::vector<quint32> prints;
  for (const OwnLine& line : OwnLinesOf(lines, {})) prints.push_back(line.Print.OfBare);
  std::ranges::sort(prints);
  return prints;
}

std::vector<OwnLine> OwnLinesOf(const QStringList& lines, std::span<const quint32> given) {
  std::vector<quint32> left(given.begin(), given.end());
  std::vector<OwnLine> own;
  bool begins = true;
  for (int i = 0; i < std::min(lines.size(), MostLinesCompared); ++i) {
    const StrippedLine line = Stripped(lines[i]);
    begins = begins || line.Bare.startsWith(Head());
    if (IsCommon(line.Bare)) continue;
    const LinePrint print{PrintOf(line.Bare), PrintOf(line.AsWritten), begins};
    const auto isGiven = std::ranges::lower_bound(left, print.OfBare);
    if (isGiven != left.end() && *isGiven == print.OfBare) {
      left.erase(isGiven);
    } else {
      own.push_back({i + 1, print});
      begins = false;
    }
  }
  return own;
}

std::optional<Likeness> LikenessOf(const ProgramPrints& one, const ProgramPrints& other) {
  const auto [fewer, more] = std::minmax({one.Sorted.size(), other.Sorted.size()});
  // A short program that a long one happens to contain is not a copy.
  if (fewer < FewestLines || more > 2 * fewer) return std::nullopt;
  const Common common = CommonOf(one.Sorted, other.Sorted);
  if (Share(common.Lines, fewer) < LeastInAnyOrder) return std::nullopt;
  if (AreAlikeInAnyOrder(one, other, common)) return Likeness{Share(common.Lines, fewer), common.Lines};
  if (common.Kinds >= FewestKinds) return LikenessInOrder(one, other, &LinePrint::OfBare);
  const std::optional<Likeness> written = LikenessInOrder(one, other, &LinePrint::AsWritten);
  if (!written || written->Lines < FewestLinesAsWritten) return std::nullopt;
  return KindsAsWritten(one.InOrder, other.InOrder) < FewestKindsAsWritten ? std::nullopt : written;
}

}  // namespace zerimo::classroom
