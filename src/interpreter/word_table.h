#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "interpreter/statement_class.h"

/// The one table of facts about the words of the language: a row for each word. Everything else here is derived from
/// it.
/// Behaviour: docs/interpreter.md, "Carrying out a word".
namespace zerimo {

/// The actions of `Executor`, one for each row of its two groups of tests, in the order of the tests.
enum class Action : std::uint8_t {
  // Tested against the whole line.
  SayDeveloper,
  CommandList,
  Fence,
  XCor,
  YCor,
  Window,
  Draw,
  GetXY,
  Pen,
  FullScreen,
  SplitScreen,
  Edit,
  TextScreen,
  ClearText,
  Bye,
  Quit,
  Clean,
  HideTurtle,
  ShowTurtle,
  Sound,
  // Tested against the first word.
  StampCircle,
  DrawMode,
  LineWidth,
  TextSize,
  Wait,
  Forward,
  Back,
  Resolution,
  Right,
  Left,
  PenReverse,
  PenUp,
  PenDown,
  PenErase,
  StampOval,
  StampRect,
  SetPC,
  SetBG,
  TextColor,
  TextBackground,
  ClearScreen,
  Home,
  HomeX,
  HomeY,
  HomeXY,
  Load,
  SavePicture,
  LoadPicture,
  Help,
  SlideShow,
  Show,
  Hide,
  SetX,
  SetY,
  SetXY,
  Refresh,
  Message,
  Write,
  BracketSum,
  BracketProduct,
  Print,
  Fill,
  FillStyle,
  Point,
  Dot,
  Circle,
  Line,
  Ellipse,
  WriteRGB,
  LineRGB,
  EllipseRGB,
  StampOvalRGB,
  StampRectRGB,
  FloodFillRGB,
  FloodFill,
  ArithmeticLine,
  RelationLine,
  Sum,
  Product,
  Quotient,
  Remainder,
  /// For words that `Executor` does not know.
  None,
};

inline constexpr std::size_t ActionCount = static_cast<std::size_t>(Action::None);

/// What a name of an action is compared with.
enum class MatchedBy : std::uint8_t { WholeLine, Word };

/// The box that reports a missing input, and whether there is one.
enum class MissingInput : std::uint8_t {
  NoTest,       // empty inputs go to the stages as they are
  Usual,        // Abort, Retry, Ignore; title "Zerimo"
  Information,  // OK and the information mark; title "Zerimo Message"
  Plain,        // OK; no title
};

/// The markers among the input counts: for words that take a body in brackets or the rest of the text, and for words
/// that are not counted.
namespace inputs {
inline constexpr std::int16_t Repeat = -1;
inline constexpr std::int16_t Print = -2;
inline constexpr std::int16_t Write = -3;
inline constexpr std::int16_t Message = -4;
inline constexpr std::int16_t BracketSum = -5;
inline constexpr std::int16_t BracketProduct = -6;
/// `HowManyInput` looks the word up in the store, like any name.
inline constexpr std::int16_t NotCounted = -100;
}  // namespace inputs

/// Whether the word has a help page of its name.
enum class HelpPage : std::uint8_t { None, Own };

/// One word of the language. The rows of actions are in the order of the tests, the short name of an action before its
/// other one; words without an action follow.
struct WordFacts {
  std::string_view Word;
  Action Does;
  MatchedBy Match;
  MissingInput Missing;
  /// What `HowManyInput` returns: 0 to 6, or a marker of `inputs`.
  std::int16_t Inputs;
  /// Places in `CommandList`, 1 to 100; 0 for none.
  int Place;
  HelpPage Page;
  int SecondPlace = 0;
  /// The class that only lines with this word have, or `StmtCall`.
  StatementClass LineClass = StmtCall;
};

/// The table.
std::span<const WordFacts> AllWords() noexcept;

/// One action: its names, how they are matched and how a missing input is reported.
struct ActionFacts {
  Action Does;
  MatchedBy Match;
  std::string_view Name;
  /// The other name, or empty.
  std::string_view OtherName;
  /// How the other name is matched: `LINEWIDTH` is tested against the whole line, so that it never gets an input.
  MatchedBy OtherMatch;
  MissingInput Missing;
};

/// All actions in the order of their tests.
std::span<const ActionFacts, ActionCount> Actions() noexcept;

/// The facts of one action.
const ActionFacts& FactsOf(Action action) noexcept;

/// The facts of a word, or null if the language has no such word.
const WordFacts* FindWord(std::string_view word);

/// The action whose test a trimmed line passes, or `Action::None`. There is at most one: the names differ, and an
/// action leaves the line and its word alone.
Action ActionOf(std::string_view line);

/// The names of `CommandList` in the order of their places: 96, with room for 4 more.
std::span<const std::string_view> CommandListNames() noexcept;

}  // namespace zerimo
