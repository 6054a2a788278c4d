#include "classroom/similarity.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <tuple>
#include <utility>

#include "classroom/findings/listing.h"

namespace zerimo::classroom {

namespace {

QStringList TextsOf(const PupilRun& run) {
  QStringList texts;
  for (const SourceLine& line : run.Outcome.Source) texts.append(line.Text);
  return texts;
}

/// Finds programs that have a rare line, or all their lines, in common.
class RareLines {
 public:
  void Add(std::size_t program, const ProgramPrints& prints) {
    const auto number = static_cast<quint32>(program);
    for (const quint32 print : SampleOf(prints.Sorted)) lines_.emplace_back(print, number);
    for (const quint32 all : PrintsOfAll(prints)) wholes_.emplace_back(all, number);
  }

  void Close() {
    std::ranges::sort(lines_);
    std::ranges::sort(wholes_);
  }

  /// The later programs that a program has to be compared with. Call `Close` first.
  std::vector<std::size_t> Partners(std::size_t program, const ProgramPrints& prints) const {
    const auto number = static_cast<quint32>(program);
    std::vector<std::size_t> partners;
    for (const quint32 print : SampleOf(prints.Sorted)) {
      const auto begin = std::ranges::lower_bound(lines_, print, {}, &Row::first);
      const auto end = std::ranges::upper_bound(lines_, print, {}, &Row::first);
      if (static_cast<std::size_t>(end - begin) > AlikeSearch::FewPrograms) continue;
      for (auto row = begin; row != end; ++row) {
        if (row->second > number) partners.push_back(row->second);
      }
    }
    for (const quint32 all : PrintsOfAll(prints)) {
      const auto next = std::ranges::upper_bound(wholes_, Row(all, number));
      if (next != wholes_.end() && next->first == all) partners.push_back(next->second);
    }
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

  /// One of the bare lines in any order, and one of the lines with their numbers.
  static std::array<quint32, 2> PrintsOfAll(const ProgramPrints& prints) {
    const auto add = [](quint32 sum, quint32 print) { return sum * 31 + print; };
    const auto addWritten = [add](quint32 sum, const LinePrint& line) { return add(sum, line.AsWritten); };
    return {std::accumulate(prints.Sorted.begin(), prints.Sorted.end(), quint32{0}, add),
            std::accumulate(prints.InOrder.begin(), prints.InOrder.end(), quint32{1}, addWritten)};
  }

  std::vector<Row> lines_;
  std::vector<Row> wholes_;
};

void KeepBest(std::vector<AlikePair>& pairs) {
  std::ranges::sort(pairs, [](const AlikePair& one, const AlikePair& other) {
    return std::tuple(other.Alike.Percent, other.Alike.Lines, one.One, one.Other) <
           std::tuple(one.Alike.Percent, one.Alike.Lines, other.One, other.Other);
  });
  if (pairs.size() > AlikeSearch::MostPairs) pairs.resize(AlikeSearch::MostPairs);
}

}  // namespace

AlikeSearch::AlikeSearch(const QString& given) : given_(BarePrintsOf(LinesOf(given))) {}

void AlikeSearch::Add(const PupilRun& run) {
  const auto begin = static_cast<std::ptrdiff_t>(prints_.size());
  for (const OwnLine& line : OwnLinesOf(TextsOf(run), given_)) {
    lines_.push_back(line.Print);
    prints_.push_back(line.Print.OfBare);
  }
  std::sort(prints_.begin() + begin, prints_.end());
  ends_.push_back(prints_.size());
}

ProgramPrints AlikeSearch::PrintsOf(std::size_t program) const {
  const std::size_t begin = program == 0 ? 0 : ends_[program - 1];
  const std::size_t size = ends_[program] - begin;
  return {std::span(prints_).subspan(begin, size), std::span(lines_).subspan(begin, size)};
}

void AlikeSearch::AddPair(std::size_t one, std::size_t other, std::vector<AlikePair>& pairs) const {
  const std::optional<Likeness> likeness = LikenessOf(PrintsOf(one), PrintsOf(other));
  if (likeness) pairs.push_back({one, other, *likeness});
  if (pairs.size() == 2 * MostPairs) KeepBest(pairs);
}

std::vector<AlikePair> AlikeSearch::Pairs() const {
  std::vector<AlikePair> pairs;
  RareLines rare;
  const bool isLarge = ends_.size() > MostComparedWithAll;
  for (std::size_t i = 0; isLarge && i < ends_.size(); ++i) {
    if (PrintsOf(i).Sorted.size() >= FewestLines) rare.Add(i, PrintsOf(i));
  }
  rare.Close();
  for (std::size_t i = 0; i < ends_.size(); ++i) {
    for (std::size_t j = i + 1; !isLarge && j < ends_.size(); ++j) AddPair(i, j, pairs);
    for (const std::size_t j : rare.Partners(i, PrintsOf(i))) AddPair(i, j, pairs);
  }
  KeepBest(pairs);
  return pairs;
}

std::vector<SharedLine> AlikeSearch::SharedLines(const PupilRun& one, const PupilRun& other) const {
  const QStringList texts = TextsOf(one);
  const QStringList others = TextsOf(other);
  std::vector<OwnLine> left = OwnLinesOf(texts, given_);
  std::vector<OwnLine> right = OwnLinesOf(others, given_);
  std::vector<SharedLine> shared;
  // A line that is the same with its numbers is the one that was copied.
  for (const auto print : {&LinePrint::AsWritten, &LinePrint::OfBare}) {
    std::erase_if(left, [&](const OwnLine& line) {
      const auto same =
          std::ranges::find(right, line.Print.*print, [print](const OwnLine& each) { return each.Print.*print; });
      if (same == right.end()) return false;
      shared.push_back({line.Number, texts[line.Number - 1], same->Number, others[same->Number - 1]});
      right.erase(same);
      return true;
    });
  }
  std::ranges::sort(shared, {}, &SharedLine::Number);
  return shared;
}

}  // namespace zerimo::classroom
