#include "interpreter/word_table.h"

#include <array>

namespace zerimo {

namespace {

using enum Acting;

constexpr auto DeriveWords() noexcept {
  std::array<WordFacts, WordRows.size()> words{};
  std::size_t actions = 0;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (WordRows[i].Acts == OwnAction) ++actions;
    words[i] = {WordRows[i], WordRows[i].Acts == NoAction ? Action::None : Action(actions - 1)};
  }
  return words;
}

constexpr auto WordTable = DeriveWords();

constexpr auto DeriveActions() noexcept {
  std::array<ActionFacts, ActionCount> actions{};
  for (const WordFacts& word : WordTable) {
    if (word.Acts == NoAction) continue;
    ActionFacts& facts = actions[word.Does.Number];
    if (word.Acts == OwnAction) {
      facts = {word.Does, word.Match, word.Word, {}, word.Match, word.Missing};
    } else {
      facts.OtherName = word.Word;
      facts.OtherMatch = word.Match;
    }
  }
  return actions;
}

constexpr std::size_t PlacesTaken() noexcept {
  std::size_t places = 0;
  for (const WordRow& row : WordRows) places += (row.Place != 0 ? 1U : 0U) + (row.SecondPlace != 0 ? 1U : 0U);
  return places;
}

constexpr auto DeriveCommandList() {
  std::array<std::string_view, PlacesTaken()> names{};
  for (const WordRow& row : WordRows) {
    for (const int place : {row.Place, row.SecondPlace}) {
      if (place != 0) names.at(static_cast<std::size_t>(place - 1)) = row.Word;
    }
  }
  return names;
}

constexpr auto ActionTable = DeriveActions();
constexpr auto CommandNames = DeriveCommandList();

/// Whole lines are tested first, and words without an action follow.
constexpr bool ActionsAreInOrder() {
  return std::ranges::is_sorted(ActionTable, {}, &ActionFacts::Match) &&
         std::ranges::is_partitioned(WordRows, [](const WordRow& row) { return row.Acts != NoAction; });
}

/// An action has one other name at most, in the row below its first.
constexpr bool OtherNamesFollowTheirFirst() {
  const auto stray = [](const WordRow& above, const WordRow& row) {
    return row.Acts == SameAction && above.Acts != OwnAction;
  };
  return WordRows.front().Acts != SameAction && std::ranges::adjacent_find(WordRows, stray) == WordRows.end();
}

constexpr bool EveryPlaceIsTakenOnce() {
  constexpr std::size_t mostPlaces = 100;
  return CommandNames.size() <= mostPlaces &&
         std::ranges::none_of(CommandNames, [](std::string_view name) { return name.empty(); });
}

constexpr bool NoWordHasTwoRows() {
  for (const WordRow& row : WordRows) {
    if (std::ranges::count(WordRows, row.Word, &WordRow::Word) != 1) return false;
  }
  return true;
}

static_assert(ActionsAreInOrder());
static_assert(OtherNamesFollowTheirFirst());
static_assert(EveryPlaceIsTakenOnce());
static_assert(NoWordHasTwoRows());

}  // namespace

std::span<const WordFacts> AllWords() noexcept { return WordTable; }

std::span<const ActionFacts, ActionCount> Actions() noexcept { return ActionTable; }

const ActionFacts& FactsOf(Action action) noexcept { return ActionTable[action.Number]; }

const WordFacts* FindWord(std::string_view word) {
  const auto* const row = std::ranges::find(WordTable, word, &WordFacts::Word);
  return row == WordTable.end() ? nullptr : row;
}

Action ActionOf(std::string_view line) {
  const WordFacts* const row = FindWord(line.substr(0, line.find(' ')));
  const bool matches = row != nullptr && (row->Match == MatchedBy::FirstWord || row->Word == line);
  return matches ? row->Does : Action::None;
}

std::span<const std::string_view> CommandListNames() noexcept { return CommandNames; }

}  // namespace zerimo
