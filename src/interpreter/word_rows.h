#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "interpreter/statement_class.h"

/// The table of words: a row for each word of the language. What others know of the words is derived from it.
/// Behaviour: docs/interpreter.md, "Carrying out a word".
namespace zerimo {

/// Which action of `Executor` a word has.
enum class Acting : std::uint8_t {
  OwnAction,   // its own; the word is the action's first name
  SameAction,  // that of the row above; the word is its other name
  NoAction,    // none: the runner or the lowering knows the word, or nothing does
};

/// What a name of an action is compared with.
enum class MatchedBy : std::uint8_t { WholeLine, FirstWord };

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
enum class HelpPage : std::uint8_t { NoPage, Page };

/// One word of the language.
struct WordRow {
  std::string_view Word;
  Acting Acts;
  MatchedBy Match;
  MissingInput Missing;
  /// What `HowManyInput` returns: 0 to 6, or a marker of `inputs`.
  std::int16_t Inputs;
  /// Places in `CommandList`, 1 to 100; 0 for none.
  int Place;
  HelpPage Help;
  int SecondPlace = 0;
  /// The class that only lines with this word have, or `StmtCall`.
  StatementClass LineClass = StmtCall;
};

/// The rows of actions are in the order of the tests, whole lines first; those without an action follow.
inline constexpr auto WordRows = [] {
  using enum Acting;
  using enum MatchedBy;
  using enum MissingInput;
  using enum HelpPage;
  using inputs::NotCounted;
  // clang-format off: one row per word
  return std::to_array<WordRow>({
      {"SAYDEVELOPER", OwnAction, WholeLine, NoTest, 0, 78, Page},
      {"SAYDEVELOPERS", SameAction, WholeLine, NoTest, NotCounted, 0, NoPage},
      {"COMMANDLIST", OwnAction, WholeLine, NoTest, 0, 96, Page},
      {"FENCE", OwnAction, WholeLine, NoTest, 0, 44, Page},
      {"XCOR", OwnAction, WholeLine, NoTest, 0, 50, Page},
      {"YCOR", OwnAction, WholeLine, NoTest, 0, 51, Page},
      {"WINDOW", OwnAction, WholeLine, NoTest, 0, 45, Page},
      {"DRAW", OwnAction, WholeLine, NoTest, 0, 31, Page},
      {"GETXY", OwnAction, WholeLine, NoTest, 0, 24, Page},
      {"PEN", OwnAction, WholeLine, NoTest, 0, 25, Page},
      {"FS", OwnAction, WholeLine, NoTest, 0, 40, Page},
      {"FULLSCREEN", SameAction, WholeLine, NoTest, NotCounted, 0, NoPage},
      {"SS", OwnAction, WholeLine, NoTest, 0, 41, Page},
      {"SPLITSCREEN", SameAction, WholeLine, NoTest, NotCounted, 0, NoPage},
      {"EDIT", OwnAction, WholeLine, NoTest, 0, 32, Page},
      {"TS", OwnAction, WholeLine, NoTest, 0, 42, Page},
      {"TEXTSCREEN", SameAction, WholeLine, NoTest, NotCounted, 0, NoPage},
      {"CT", OwnAction, WholeLine, NoTest, 0, 43, Page},
      {"CLEARTEXT", SameAction, WholeLine, NoTest, NotCounted, 0, NoPage},
      {"BYE", OwnAction, WholeLine, NoTest, 0, 18, Page},
      {"QUIT", OwnAction, WholeLine, NoTest, 0, 52, Page},
      {"CLEAN", OwnAction, WholeLine, NoTest, 0, 13, Page},
      {"HT", OwnAction, WholeLine, NoTest, 0, 11, Page},
      {"HIDETURTLE", SameAction, WholeLine, NoTest, 0, 93, Page},
      {"ST", OwnAction, WholeLine, NoTest, 0, 10, Page},
      {"SHOWTURTLE", SameAction, WholeLine, NoTest, 0, 92, Page},
      // Against the whole line, so that `SOUND 5` does nothing.
      {"SOUND", OwnAction, WholeLine, NoTest, 1, 65, Page},
      {"STAMPCIRCLE", OwnAction, FirstWord, Usual, 1, 79, Page},
      {"DRAWMODE", OwnAction, FirstWord, Usual, 1, 56, Page},
      {"LW", OwnAction, FirstWord, Usual, 1, 71, Page},
      // Against the whole line too: `LINEWIDTH 3` matches nothing.
      {"LINEWIDTH", SameAction, WholeLine, Usual, 1, 95, Page},
      {"TEXTSIZE", OwnAction, FirstWord, Usual, 1, 2, Page},
      {"WAIT", OwnAction, FirstWord, Usual, 1, 33, Page},
      {"FD", OwnAction, FirstWord, Usual, 1, 1, Page},
      {"FORWARD", SameAction, FirstWord, Usual, 1, 83, Page},
      {"BK", OwnAction, FirstWord, Information, 1, 3, Page},
      {"BACK", SameAction, FirstWord, Information, 1, 84, Page},
      {"RESOLUTION", OwnAction, FirstWord, Plain, 1, 28, Page},
      {"RT", OwnAction, FirstWord, Plain, 1, 5, Page},
      {"RIGHT", SameAction, FirstWord, Plain, 1, 86, Page},
      {"LT", OwnAction, FirstWord, Usual, 1, 4, Page},
      {"LEFT", SameAction, FirstWord, Usual, 1, 85, Page},
      {"PX", OwnAction, FirstWord, NoTest, 0, 9, Page},
      // Twice in `CommandList`, on purpose: `COMMANDLIST` writes the table as it is.
      {"PENREVERSE", SameAction, FirstWord, NoTest, 0, 91, Page, 94},
      {"PU", OwnAction, FirstWord, NoTest, 0, 6, Page},
      {"PENUP", SameAction, FirstWord, NoTest, 0, 88, Page},
      {"PD", OwnAction, FirstWord, NoTest, 0, 7, Page},
      {"PENDOWN", SameAction, FirstWord, NoTest, 0, 89, Page},
      {"PE", OwnAction, FirstWord, NoTest, 0, 8, Page},
      {"PENERASE", SameAction, FirstWord, NoTest, 0, 90, Page},
      {"STAMPOVAL", OwnAction, FirstWord, NoTest, 2, 34, Page},
      {"STAMPRECT", OwnAction, FirstWord, NoTest, 2, 38, Page},
      {"SETPC", OwnAction, FirstWord, Usual, 1, 26, Page},
      {"SETBG", OwnAction, FirstWord, Usual, 1, 27, Page},
      {"TEXTCOLOR", OwnAction, FirstWord, Usual, 1, 57, Page},
      {"TEXTBACKGROUND", OwnAction, FirstWord, Usual, 1, 58, Page},
      {"CS", OwnAction, FirstWord, NoTest, 0, 12, Page},
      {"CLEARSCREEN", SameAction, FirstWord, NoTest, 0, 87, Page},
      {"HOME", OwnAction, FirstWord, NoTest, 0, 14, Page},
      {"HOMEX", OwnAction, FirstWord, NoTest, 0, 15, Page},
      {"HOMEY", OwnAction, FirstWord, NoTest, 0, 16, Page},
      {"HOMEXY", OwnAction, FirstWord, NoTest, 0, 17, Page},
      {"LOAD", OwnAction, FirstWord, Usual, 1, 29, Page},
      {"SAVEPICTURE", OwnAction, FirstWord, Usual, 1, 81, Page},
      {"LOADPICTURE", OwnAction, FirstWord, Usual, 1, 53, Page},
      {"HELP", OwnAction, FirstWord, NoTest, 1, 82, Page},
      {"SLIDESHOW", OwnAction, FirstWord, NoTest, 2, 54, Page},
      {"SHOW", OwnAction, FirstWord, NoTest, 1, 62, Page},
      {"HIDE", OwnAction, FirstWord, NoTest, 0, 63, Page},
      {"SETX", OwnAction, FirstWord, Usual, 1, 19, Page},
      {"SETY", OwnAction, FirstWord, Usual, 1, 20, Page},
      {"SETXY", OwnAction, FirstWord, NoTest, 2, 23, Page},
      {"REFRESH", OwnAction, FirstWord, NoTest, NotCounted, 64, Page},
      {"MESSAGE", OwnAction, FirstWord, NoTest, inputs::Message, 55, Page},
      {"WRITE", OwnAction, FirstWord, NoTest, inputs::Write, 67, Page},
      {"(SUM", OwnAction, FirstWord, NoTest, inputs::BracketSum, 68, Page},
      {"(PRODUCT", OwnAction, FirstWord, NoTest, inputs::BracketProduct, 69, Page},
      {"PRINT", OwnAction, FirstWord, NoTest, inputs::Print, 66, Page},
      {"FILL", OwnAction, FirstWord, NoTest, 1, 59, Page},
      {"FILLSTYLE", OwnAction, FirstWord, NoTest, 1, 60, Page},
      {"POINT", OwnAction, FirstWord, NoTest, 3, 61, Page},
      {"DOT", OwnAction, FirstWord, NoTest, 2, 76, Page},
      {"CIRCLE", OwnAction, FirstWord, NoTest, 3, 77, Page},
      {"LINE", OwnAction, FirstWord, NoTest, 4, 72, Page},
      {"ELLIPSE", OwnAction, FirstWord, NoTest, 5, 74, Page},
      {"WRITERGB", OwnAction, FirstWord, NoTest, inputs::Write, 70, Page},
      {"LINERGB", OwnAction, FirstWord, NoTest, 5, 73, Page},
      {"ELLIPSERGB", OwnAction, FirstWord, NoTest, 6, 75, Page},
      {"STAMPOVALRGB", OwnAction, FirstWord, NoTest, 3, 35, Page},
      {"STAMPRECTRGB", OwnAction, FirstWord, NoTest, 3, 39, Page},
      {"FLOODFILLRGB", OwnAction, FirstWord, NoTest, 1, 36, Page},
      {"FLOODFILL", OwnAction, FirstWord, NoTest, 1, 37, Page},
      {"AEXP", OwnAction, FirstWord, NoTest, NotCounted, 0, NoPage},
      {"REXP", OwnAction, FirstWord, NoTest, NotCounted, 0, NoPage},
      {"SUM", OwnAction, FirstWord, NoTest, 2, 46, Page},
      {"PRODUCT", OwnAction, FirstWord, NoTest, 2, 47, Page},
      {"QUOTIENT", OwnAction, FirstWord, NoTest, 2, 48, Page},
      {"REMAINDER", OwnAction, FirstWord, NoTest, 2, 49, Page},
      {"GETX", NoAction, FirstWord, NoTest, 0, 21, Page},
      {"GETY", NoAction, FirstWord, NoTest, 0, 22, Page},
      {"ENDIF", NoAction, FirstWord, NoTest, 0, 0, Page, 0, StmtEndIf},
      {"LABEL", NoAction, FirstWord, NoTest, 1, 0, Page, 0, StmtLabel},
      {"GOTO", NoAction, FirstWord, NoTest, 1, 0, Page, 0, StmtGoto},
      {"IF", NoAction, FirstWord, NoTest, 1, 0, Page, 0, StmtIf},
      {"SAVE", NoAction, FirstWord, NoTest, 1, 80, Page},
      {"MAKE", NoAction, FirstWord, NoTest, 2, 0, Page, 0, StmtMake},
      {"REPEAT", NoAction, FirstWord, NoTest, inputs::Repeat, 30, Page},
      {"TO", NoAction, FirstWord, NoTest, NotCounted, 0, Page, 0, StmtTo},
      {"END", NoAction, FirstWord, NoTest, NotCounted, 0, Page, 0, StmtEnd},
      {"ELSE", NoAction, FirstWord, NoTest, NotCounted, 0, Page, 0, StmtElse},
  });
  // clang-format on
}();

}  // namespace zerimo
