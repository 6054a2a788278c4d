#include "classroom/findings/mistakes.h"

#include <array>

namespace zerimo::classroom {

namespace {

constexpr std::size_t Count = static_cast<std::size_t>(Mistake::Count);

constexpr std::array<MistakeFacts, Count> Table = {{
    {Mistake::MinusInput, "minus input", "why-does-fd--5-do-nothing"},
    {Mistake::MinusSecondInput, "minus second input", "why-does-setxy-10--20-go-to-the-left"},
    {Mistake::MinusMake, "minus make", "why-is-n-still-0-after-make-n--5"},
    {Mistake::DoubleMinus, "double minus", "why-is-3--4-not-7-and-10-n-not-15-when-n-is--5"},
    {Mistake::PercentAfterTimes, "percent after times", "why-is-274-not-2"},
    {Mistake::MissingTimes, "missing times", "why-is-234-twenty-seven"},
    {Mistake::BarePoint, "bare point", "why-does-fd-5-do-nothing"},
    {Mistake::BlankBeforeEquals, "blank before equals", "why-do-blanks-matter-in-a-sum"},
    {Mistake::NoBlankAfterWord, "no blank after word", "why-do-blanks-matter-in-a-sum"},
    {Mistake::RoundedThird, "rounded third", "why-is-a-third-suddenly-33"},
    {Mistake::HalfNumber, "half number", "why-is-25-rounded-to-2-and-35-to-4"},
    {Mistake::WholeStep, "whole step", "why-is-a-circle-of-radius-25-only-2-wide-and-setxy-a-bit-off"},
    {Mistake::DivisionByZero, "division by zero", "why-does-a-division-by-0-say-nothing"},
    {Mistake::TooLarge, "too large", "why-does-a-large-number-become-0"},
    {Mistake::Exponent, "exponent", "why-is-print-1000000100000010000001-twenty"},
    {Mistake::DigitInName, "digit in name", "why-can-i-not-read-side1"},
    {Mistake::MakeWithoutQuote, "make without quote", "why-does-make-a-5-not-make-a"},
    {Mistake::WrongSign, "wrong sign", "why-is-if-a--5-never-true"},
    {Mistake::TwoComparisons, "two comparisons", "why-can-i-not-ask-1a5-or-use-and-and-not"},
    {Mistake::LogicWord, "logic word", "why-can-i-not-ask-1a5-or-use-and-and-not"},
    {Mistake::LongLineWidth, "long line width", "why-does-linewidth-3-not-work"},
    {Mistake::ColourCode, "colour code", "what-are-colours-16-20-and--1"},
    {Mistake::OpenQuote, "open quote", "why-does-message-hello-show-0"},
    {Mistake::OpenSum, "open sum", "why-does-sum-1-2-3-say-nothing"},
    {Mistake::DeadWord, "dead word", "which-words-do-nothing"},
    {Mistake::ElseWithMore, "else with more", "why-is-there-misplaced-else"},
    {Mistake::SecondQuote, "second quote", "why-does-make-a-5-not-make-a"},
    {Mistake::BlankInSum, "blank in sum", "why-do-blanks-matter-in-a-sum"},
    {Mistake::CounterUsed, "counter used", "where-has-my-repeat-gone"},
    {Mistake::Comma, "comma", "why-is-fd-55-so-long"},
    {Mistake::StrangeSign, "strange sign", "why-is-fd-55-so-long"},
    {Mistake::MissingNumber, "missing number", "why-is-fd-55-so-long"},
    {Mistake::TextAndMore, "text and more", "why-does-message-hello-show-0"},
    {Mistake::CountMissing, "count missing", "why-does-repeat-0--run-once"},
    {Mistake::CountZero, "count zero", "why-does-repeat-0--run-once"},
    {Mistake::CountFraction, "count fraction", "why-does-repeat-0--run-once"},
    {Mistake::CountTooLarge, "count too large", "why-does-nothing-work-any-more-after-repeat-40000"},
    {Mistake::CountChanged, "count changed", "why-does-my-repeat-run-more-often-than-i-said"},
    {Mistake::MissingBracket, "missing bracket", "what-if-a-bracket-is-missing"},
    {Mistake::ExtraBracket, "extra bracket", "what-if-a-bracket-is-missing"},
    {Mistake::PrintInRepeat, "print in repeat", "why-does-print-in-a-repeat-print-strange-numbers"},
    {Mistake::IndentedRepeat, "indented repeat", "why-is-my-program-gone-after-i-indented-a-repeat"},
    {Mistake::LongBody, "long body", "why-does-nothing-work-any-more-after-repeat-40000"},
    {Mistake::UnknownWord, "unknown word", "why-does-nothing-happen-when-i-mistype-a-word"},
    {Mistake::SmallLetters, "small letters", "why-does-a-file-from-another-program-not-work"},
    {Mistake::SeveralStatements, "several statements",
     "why-does-the-turtle-vanish-when-i-put-two-things-on-one-line-of-the-editor"},
    {Mistake::MissingInputs, "missing inputs", "what-do-abort-retry-and-ignore-do"},
    {Mistake::TooManyInputs, "too many inputs",
     "why-does-the-turtle-vanish-when-i-put-two-things-on-one-line-of-the-editor"},
    {Mistake::TextWithoutQuotes, "text without quotes",
     "why-does-zerimo-not-complain-about-a-name-that-nobody-has-made"},
    {Mistake::UnknownName, "unknown name", "why-does-zerimo-not-complain-about-a-name-that-nobody-has-made"},
    {Mistake::NameWithoutColon, "name without colon", "why-does-zerimo-not-complain-about-a-name-that-nobody-has-made"},
    {Mistake::ZeroVanishes, "zero vanishes", "why-is-z53-zero-when-z-is-0"},
    {Mistake::InputTwice, "input twice", "why-is-the-second-s-in-ss-not-seen"},
    {Mistake::InputWithoutBrackets, "input without brackets", "why-is-3n-wrong-for-box-23"},
    {Mistake::InputOverwritten, "input overwritten", "why-does-a-procedure-change-my-names-outside"},
    {Mistake::OutsideProcedures, "outside procedures", "why-is-my-make-at-the-top-of-the-program-not-known-at-once"},
    {Mistake::MakeAtTop, "make at the top", "why-is-my-make-at-the-top-of-the-program-not-known-at-once"},
    {Mistake::DuplicateProcedure, "duplicate procedure", "why-is-the-old-version-of-my-procedure-used"},
    {Mistake::WithoutEnd, "without end", ""},
    {Mistake::NameIsAWord, "name is a word", ""},
    {Mistake::NameIsASum, "name is a sum", ""},
    {Mistake::IfWithoutEndif, "if without endif", "why-does-the-whole-window-hang"},
    {Mistake::MisplacedElse, "misplaced else", "why-is-there-misplaced-else"},
    {Mistake::DeepElse, "deep else", "why-is-the-wrong-else-taken"},
    {Mistake::LabelAfterEndif, "label after endif", "why-is-the-line-after-my-label-left-out"},
    {Mistake::DuplicateLabel, "duplicate label", "why-does-goto-jump-into-another-procedure"},
    {Mistake::UnknownLabel, "unknown label", "what-is-the-text-below-the-lists-of-the-diagnosis-panel"},
    {Mistake::RecursionGoesOn, "recursion goes on", "why-does-recursion-not-come-back"},
    {Mistake::RecursionWithInput, "recursion with input", "why-does-a-procedure-that-calls-itself-with-n-1-never-end"},
    {Mistake::EraserReversed, "eraser reversed", "why-does-px-do-nothing"},
    {Mistake::EraserColour, "eraser colour", "why-does-setpc-4-not-change-the-eraser"},
    {Mistake::ShapeWithPenUp, "shape with pen up", "why-do-some-shapes-vanish-with-the-pen-up-and-others-not"},
    {Mistake::EmptyShapes, "empty shapes", "why-are-circles-filled-at-first-and-empty-later"},
    {Mistake::DroppedLetters, "dropped letters", "why-are-letters-such-as-ä-and-é-gone-from-my-program"},
    {Mistake::Tab, "tab", "why-does-a-file-from-another-program-not-work"},
    {Mistake::BlankLine, "blank line", "why-does-the-second-half-of-my-program-not-exist"},
    {Mistake::TooLong, "too long", "how-large-may-a-program-be"},
    {Mistake::Empty, "empty", ""},
    {Mistake::OneLine, "one line", ""},
    {Mistake::NothingDrawn, "nothing drawn", "why-is-part-of-my-drawing-hidden-at-the-start"},
    {Mistake::NothingWithPenUp, "nothing with pen up", "why-is-part-of-my-drawing-hidden-at-the-start"},
    {Mistake::NothingLeft, "nothing left", "why-is-part-of-my-drawing-hidden-at-the-start"},
    {Mistake::UnderTheTitle, "under the title", "why-is-part-of-my-drawing-hidden-at-the-start"},
    {Mistake::OutsideThePicture, "outside the picture", "why-does-a-large-number-become-0"},
    {Mistake::PictureWiped, "picture wiped", "why-did-setbg-wipe-the-picture"},
    {Mistake::FenceHit, "fence hit", "why-does-the-turtle-not-go-up-to-the-fence"},
    {Mistake::InputAsked, "input asked", "what-do-abort-retry-and-ignore-do"},
    {Mistake::LoadedTwice, "loaded twice", "why-is-the-old-version-of-my-procedure-used"},
    {Mistake::LoadsAnother, "loads another", ""},
    {Mistake::ForEver, "for ever", "why-does-the-whole-window-hang"},
}};

constexpr bool StandsInOrder() {
  for (std::size_t i = 0; i < Count; ++i) {
    if (static_cast<std::size_t>(Table[i].What) != i) return false;
  }
  return true;
}
static_assert(StandsInOrder());

}  // namespace

std::span<const MistakeFacts, Count> Mistakes() { return Table; }

const MistakeFacts& FactsOf(Mistake mistake) { return Table[static_cast<std::size_t>(mistake)]; }

}  // namespace zerimo::classroom
