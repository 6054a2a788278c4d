#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "interpreter/word_rows.h"

/// The words of the language and the actions of `Executor`, derived from the rows.
/// Behaviour: docs/interpreter.md, "Carrying out a word".
namespace zerimo {

inline constexpr auto ActionCount =
    static_cast<std::size_t>(std::ranges::count(WordRows, Acting::OwnAction, &WordRow::Acts));

/// An action of `Executor`, written as its first name: `Action("FD")`, or "FD" where an action is expected.
struct Action {
  /// No other text than the first name of an action compiles.
  consteval Action(const char* firstName) : Number(NumberOf(firstName)) {}

  /// The action of a number below `ActionCount`, or none.
  constexpr explicit Action(std::size_t number) noexcept : Number(static_cast<std::uint8_t>(number)) {}

  friend constexpr bool operator==(const Action&, const Action&) noexcept = default;

  /// For words that `Executor` does not know.
  static const Action None;

  /// The place in the order of the tests, from 0.
  std::uint8_t Number;

 private:
  /// Has no value, so that the compiler refuses a name for which it is needed.
  static std::uint8_t NumberOfNoAction();

  static constexpr std::uint8_t NumberOf(std::string_view firstName) {
    std::uint8_t number = 0;
    for (const WordRow& row : WordRows) {
      if (row.Acts != Acting::OwnAction) continue;
      if (row.Word == firstName) return number;
      ++number;
    }
    return NumberOfNoAction();
  }
};

inline constexpr Action Action::None{ActionCount};

/// A row of the table, and its action.
struct WordFacts : WordRow {
  Action Does = Action::None;
};

/// All rows, in the order of the table.
std::span<const WordFacts> AllWords() noexcept;

/// One action: its names, how they are matched and how a missing input is reported.
struct ActionFacts {
  Action Does = Action::None;
  MatchedBy Match = MatchedBy::WholeLine;
  std::string_view Name;
  /// The other name, or empty.
  std::string_view OtherName;
  /// How the other name is matched: `LINEWIDTH` is tested against the whole line, so that it never gets an input.
  MatchedBy OtherMatch = MatchedBy::WholeLine;
  MissingInput Missing = MissingInput::NoTest;
};

/// All actions in the order of their tests.
std::span<const ActionFacts, ActionCount> Actions() noexcept;

const ActionFacts& FactsOf(Action action) noexcept;

/// The facts of a word, or null if the language has no such word.
const WordFacts* FindWord(std::string_view word);

/// The action whose test a trimmed line passes, or `Action::None`. There is at most one: the names differ, and an
/// action leaves the line and its word alone.
Action ActionOf(std::string_view line);

/// The names of `CommandList` in the order of their places: 96, with room for 4 more.
std::span<const std::string_view> CommandListNames() noexcept;

}  // namespace zerimo
