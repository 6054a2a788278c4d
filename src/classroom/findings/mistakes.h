#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <span>
#include <vector>

namespace zerimo::classroom {

/// What can be wrong with a program. The rows of `Mistakes` have the same order.
enum class Mistake : std::uint8_t {
  // Seen in one statement.
  MinusInput,
  MinusSecondInput,
  MinusMake,
  DoubleMinus,
  PercentAfterTimes,
  MissingTimes,
  BarePoint,
  BlankBeforeEquals,
  NoBlankAfterWord,
  RoundedThird,
  HalfNumber,
  WholeStep,
  DivisionByZero,
  TooLarge,
  Exponent,
  DigitInName,
  MakeWithoutQuote,
  WrongSign,
  TwoComparisons,
  LogicWord,
  LongLineWidth,
  ColourCode,
  OpenQuote,
  OpenSum,
  DeadWord,
  ElseWithMore,
  SecondQuote,
  BlankInSum,
  CounterUsed,
  Comma,
  StrangeSign,
  MissingNumber,
  TextAndMore,
  // About REPEAT.
  CountMissing,
  CountZero,
  CountFraction,
  CountTooLarge,
  CountChanged,
  MissingBracket,
  ExtraBracket,
  PrintInRepeat,
  IndentedRepeat,
  LongBody,
  // About words and names.
  UnknownWord,
  SmallLetters,
  SeveralStatements,
  MissingInputs,
  TooManyInputs,
  TextWithoutQuotes,
  UnknownName,
  NameWithoutColon,
  ZeroVanishes,
  InputTwice,
  InputWithoutBrackets,
  InputOverwritten,
  // About the whole program.
  OutsideProcedures,
  MakeAtTop,
  DuplicateProcedure,
  WithoutEnd,
  NameIsAWord,
  NameIsASum,
  IfWithoutEndif,
  MisplacedElse,
  DeepElse,
  LabelAfterEndif,
  DuplicateLabel,
  UnknownLabel,
  RecursionGoesOn,
  RecursionWithInput,
  EraserReversed,
  EraserColour,
  ShapeWithPenUp,
  EmptyShapes,
  DroppedLetters,
  Tab,
  BlankLine,
  TooLong,
  Empty,
  OneLine,
  // Seen in the run.
  NothingDrawn,
  NothingWithPenUp,
  NothingLeft,
  UnderTheTitle,
  OutsideThePicture,
  PictureWiped,
  FenceHit,
  InputAsked,
  LoadedTwice,
  LoadsAnother,
  ForEver,
  Count,
};

struct MistakeFacts {
  Mistake What;
  /// Its name in files.
  const char* Code;
  /// The address of the heading in docs/quirks.md that explains it, or empty.
  const char* Quirk;
};

std::span<const MistakeFacts, static_cast<std::size_t>(Mistake::Count)> Mistakes();

const MistakeFacts& FactsOf(Mistake mistake);

/// One mistake found in a program.
struct Finding {
  Mistake What;
  /// The line of the program's file, from 1, or 0 for the program as a whole.
  int Line = 0;
  /// What is filled into the words for the mistake, in order: "FORWRD", "FORWARD".
  QStringList Details;

  bool operator==(const Finding&) const = default;
};

}  // namespace zerimo::classroom
