#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace zerimo::classroom {

/// A line without what someone who copies would change: "FD 10", "FORWARD 7" and "FD :SIZE" are one.
QString Bare(const QString& line);

/// A line of a program as it is compared with those of others.
struct LinePrint {
  quint32 OfBare = 0;
  /// With its numbers, but without names and texts.
  quint32 AsWritten = 0;
  /// Whether it is the first of its procedure.
  bool Begins = false;
};

/// A line that is a program's own: one that neither everyone was given nor every program has.
struct OwnLine {
  /// From 1.
  int Number = 0;
  LinePrint Print;
};

/// The prints of lines without what they have in common with every program, in ascending order.
std::vector<quint32> BarePrintsOf(const QStringList& lines);

/// The own lines of a program, in its order. `given` are prints in ascending order, each of which accounts for one
/// line.
std::vector<OwnLine> OwnLinesOf(const QStringList& lines, std::span<const quint32> given);

/// A program's own lines as they are compared.
struct ProgramPrints {
  /// Those of the bare lines, in ascending order.
  std::span<const quint32> Sorted;
  std::span<const LinePrint> InOrder;
};

/// What two programs have in common.
struct Likeness {
  /// The share of the shorter program's lines that the other one has too, in per cent.
  double Percent = 0;
  /// How many lines that is.
  std::size_t Lines = 0;
};

/// Programs with fewer lines of their own are alike by chance.
inline constexpr std::size_t FewestLines = 6;

/// How much two programs are alike, or nothing if that may be chance. A drawing of nothing but FD, RT and LT has the
/// same bare lines as any other; so lines of many kinds have to be alike, in any order, or most lines in their order.
std::optional<Likeness> LikenessOf(const ProgramPrints& one, const ProgramPrints& other);

}  // namespace zerimo::classroom
