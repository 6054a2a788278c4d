#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

/// The one table of facts about the words of the language.
namespace zerimo::reference {

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
  Count,
};

inline constexpr std::size_t ActionCount = static_cast<std::size_t>(Action::Count);

/// What a name of an action is compared with.
enum class MatchedBy : std::uint8_t { WholeLine, Word };

/// The box that reports a missing input, and whether there is one.
enum class MissingInput : std::uint8_t {
  NoTest,       // empty inputs go to the stages as they are
  Usual,        // Abort, Retry, Ignore; title "Zerimo"
  Information,  // OK and the information mark; title "Zerimo Message"
  Plain,        // OK; no title
};

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
std::span<const ActionFacts, ActionCount> Actions();

/// The facts of one action.
const ActionFacts& FactsOf(Action action);

/// A word that counts its inputs for `HowManyInput`: 0 to 6, or a marker.
struct InputCount {
  std::string_view Word;
  std::int16_t Inputs;
};

/// The markers among the input counts: for words that take a body in brackets or the rest of the text.
namespace inputs {
inline constexpr std::int16_t Repeat = -1;
inline constexpr std::int16_t Print = -2;
inline constexpr std::int16_t Write = -3;
inline constexpr std::int16_t Message = -4;
inline constexpr std::int16_t BracketSum = -5;
inline constexpr std::int16_t BracketProduct = -6;
}  // namespace inputs

/// The fixed table of `HowManyInput`, in its order.
std::span<const InputCount> InputCounts();

/// The names of `CommandList`, entries 1 to 96; entries 97 to 100 are empty.
inline constexpr int CommandListSize = 100;
std::span<const std::string_view> CommandListNames();

}  // namespace zerimo::reference
