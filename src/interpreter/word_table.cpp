#include "interpreter/word_table.h"

#include <algorithm>

namespace zerimo {

namespace {

using enum MissingInput;
using inputs::NotCounted;

constexpr MatchedBy WholeLine = MatchedBy::WholeLine;
constexpr MatchedBy Word = MatchedBy::Word;
constexpr HelpPage Page = HelpPage::Own;
constexpr HelpPage NoPage = HelpPage::None;

// clang-format off: one row per word
constexpr WordFacts WordTable[] = {
    {"SAYDEVELOPER", Action::SayDeveloper, WholeLine, NoTest, 0, 78, Page},
    {"SAYDEVELOPERS", Action::SayDeveloper, WholeLine, NoTest, NotCounted, 0, NoPage},
    {"COMMANDLIST", Action::CommandList, WholeLine, NoTest, 0, 96, Page},
    {"FENCE", Action::Fence, WholeLine, NoTest, 0, 44, Page},
    {"XCOR", Action::XCor, WholeLine, NoTest, 0, 50, Page},
    {"YCOR", Action::YCor, WholeLine, NoTest, 0, 51, Page},
    {"WINDOW", Action::Window, WholeLine, NoTest, 0, 45, Page},
    {"DRAW", Action::Draw, WholeLine, NoTest, 0, 31, Page},
    {"GETXY", Action::GetXY, WholeLine, NoTest, 0, 24, Page},
    {"PEN", Action::Pen, WholeLine, NoTest, 0, 25, Page},
    {"FS", Action::FullScreen, WholeLine, NoTest, 0, 40, Page},
    {"FULLSCREEN", Action::FullScreen, WholeLine, NoTest, NotCounted, 0, NoPage},
    {"SS", Action::SplitScreen, WholeLine, NoTest, 0, 41, Page},
    {"SPLITSCREEN", Action::SplitScreen, WholeLine, NoTest, NotCounted, 0, NoPage},
    {"EDIT", Action::Edit, WholeLine, NoTest, 0, 32, Page},
    {"TS", Action::TextScreen, WholeLine, NoTest, 0, 42, Page},
    {"TEXTSCREEN", Action::TextScreen, WholeLine, NoTest, NotCounted, 0, NoPage},
    {"CT", Action::ClearText, WholeLine, NoTest, 0, 43, Page},
    {"CLEARTEXT", Action::ClearText, WholeLine, NoTest, NotCounted, 0, NoPage},
    {"BYE", Action::Bye, WholeLine, NoTest, 0, 18, Page},
    {"QUIT", Action::Quit, WholeLine, NoTest, 0, 52, Page},
    {"CLEAN", Action::Clean, WholeLine, NoTest, 0, 13, Page},
    {"HT", Action::HideTurtle, WholeLine, NoTest, 0, 11, Page},
    {"HIDETURTLE", Action::HideTurtle, WholeLine, NoTest, 0, 93, Page},
    {"ST", Action::ShowTurtle, WholeLine, NoTest, 0, 10, Page},
    {"SHOWTURTLE", Action::ShowTurtle, WholeLine, NoTest, 0, 92, Page},
    // Against the whole line, so that `SOUND 5` does nothing.
    {"SOUND", Action::Sound, WholeLine, NoTest, 1, 65, Page},
    {"STAMPCIRCLE", Action::StampCircle, Word, Usual, 1, 79, Page},
    {"DRAWMODE", Action::DrawMode, Word, Usual, 1, 56, Page},
    {"LW", Action::LineWidth, Word, Usual, 1, 71, Page},
    // Against the whole line too: `LINEWIDTH 3` matches nothing.
    {"LINEWIDTH", Action::LineWidth, WholeLine, Usual, 1, 95, Page},
    {"TEXTSIZE", Action::TextSize, Word, Usual, 1, 2, Page},
    {"WAIT", Action::Wait, Word, Usual, 1, 33, Page},
    {"FD", Action::Forward, Word, Usual, 1, 1, Page},
    {"FORWARD", Action::Forward, Word, Usual, 1, 83, Page},
    {"BK", Action::Back, Word, Information, 1, 3, Page},
    {"BACK", Action::Back, Word, Information, 1, 84, Page},
    {"RESOLUTION", Action::Resolution, Word, Plain, 1, 28, Page},
    {"RT", Action::Right, Word, Plain, 1, 5, Page},
    {"RIGHT", Action::Right, Word, Plain, 1, 86, Page},
    {"LT", Action::Left, Word, Usual, 1, 4, Page},
    {"LEFT", Action::Left, Word, Usual, 1, 85, Page},
    {"PX", Action::PenReverse, Word, NoTest, 0, 9, Page},
    // Twice in `CommandList`, on purpose: `COMMANDLIST` writes the table as it is.
    {"PENREVERSE", Action::PenReverse, Word, NoTest, 0, 91, Page, 94},
    {"PU", Action::PenUp, Word, NoTest, 0, 6, Page},
    {"PENUP", Action::PenUp, Word, NoTest, 0, 88, Page},
    {"PD", Action::PenDown, Word, NoTest, 0, 7, Page},
    {"PENDOWN", Action::PenDown, Word, NoTest, 0, 89, Page},
    {"PE", Action::PenErase, Word, NoTest, 0, 8, Page},
    {"PENERASE", Action::PenErase, Word, NoTest, 0, 90, Page},
    {"STAMPOVAL", Action::StampOval, Word, NoTest, 2, 34, Page},
    {"STAMPRECT", Action::StampRect, Word, NoTest, 2, 38, Page},
    {"SETPC", Action::SetPC, Word, Usual, 1, 26, Page},
    {"SETBG", Action::SetBG, Word, Usual, 1, 27, Page},
    {"TEXTCOLOR", Action::TextColor, Word, Usual, 1, 57, Page},
    {"TEXTBACKGROUND", Action::TextBackground, Word, Usual, 1, 58, Page},
    {"CS", Action::ClearScreen, Word, NoTest, 0, 12, Page},
    {"CLEARSCREEN", Action::ClearScreen, Word, NoTest, 0, 87, Page},
    {"HOME", Action::Home, Word, NoTest, 0, 14, Page},
    {"HOMEX", Action::HomeX, Word, NoTest, 0, 15, Page},
    {"HOMEY", Action::HomeY, Word, NoTest, 0, 16, Page},
    {"HOMEXY", Action::HomeXY, Word, NoTest, 0, 17, Page},
    {"LOAD", Action::Load, Word, Usual, 1, 29, Page},
    {"SAVEPICTURE", Action::SavePicture, Word, Usual, 1, 81, Page},
    {"LOADPICTURE", Action::LoadPicture, Word, Usual, 1, 53, Page},
    {"HELP", Action::Help, Word, NoTest, 1, 82, Page},
    {"SLIDESHOW", Action::SlideShow, Word, NoTest, 2, 54, Page},
    {"SHOW", Action::Show, Word, NoTest, 1, 62, Page},
    {"HIDE", Action::Hide, Word, NoTest, 0, 63, Page},
    {"SETX", Action::SetX, Word, Usual, 1, 19, Page},
    {"SETY", Action::SetY, Word, Usual, 1, 20, Page},
    {"SETXY", Action::SetXY, Word, NoTest, 2, 23, Page},
    {"REFRESH", Action::Refresh, Word, NoTest, NotCounted, 64, Page},
    {"MESSAGE", Action::Message, Word, NoTest, inputs::Message, 55, Page},
    {"WRITE", Action::Write, Word, NoTest, inputs::Write, 67, Page},
    {"(SUM", Action::BracketSum, Word, NoTest, inputs::BracketSum, 68, Page},
    {"(PRODUCT", Action::BracketProduct, Word, NoTest, inputs::BracketProduct, 69, Page},
    {"PRINT", Action::Print, Word, NoTest, inputs::Print, 66, Page},
    {"FILL", Action::Fill, Word, NoTest, 1, 59, Page},
    {"FILLSTYLE", Action::FillStyle, Word, NoTest, 1, 60, Page},
    {"POINT", Action::Point, Word, NoTest, 3, 61, Page},
    {"DOT", Action::Dot, Word, NoTest, 2, 76, Page},
    {"CIRCLE", Action::Circle, Word, NoTest, 3, 77, Page},
    {"LINE", Action::Line, Word, NoTest, 4, 72, Page},
    {"ELLIPSE", Action::Ellipse, Word, NoTest, 5, 74, Page},
    {"WRITERGB", Action::WriteRGB, Word, NoTest, inputs::Write, 70, Page},
    {"LINERGB", Action::LineRGB, Word, NoTest, 5, 73, Page},
    {"ELLIPSERGB", Action::EllipseRGB, Word, NoTest, 6, 75, Page},
    {"STAMPOVALRGB", Action::StampOvalRGB, Word, NoTest, 3, 35, Page},
    {"STAMPRECTRGB", Action::StampRectRGB, Word, NoTest, 3, 39, Page},
    {"FLOODFILLRGB", Action::FloodFillRGB, Word, NoTest, 1, 36, Page},
    {"FLOODFILL", Action::FloodFill, Word, NoTest, 1, 37, Page},
    {"AEXP", Action::ArithmeticLine, Word, NoTest, NotCounted, 0, NoPage},
    {"REXP", Action::RelationLine, Word, NoTest, NotCounted, 0, NoPage},
    {"SUM", Action::Sum, Word, NoTest, 2, 46, Page},
    {"PRODUCT", Action::Product, Word, NoTest, 2, 47, Page},
    {"QUOTIENT", Action::Quotient, Word, NoTest, 2, 48, Page},
    {"REMAINDER", Action::Remainder, Word, NoTest, 2, 49, Page},
    // Words without an action: the runner or the lowering knows them, or nothing does.
    {"GETX", Action::None, Word, NoTest, 0, 21, Page},
    {"GETY", Action::None, Word, NoTest, 0, 22, Page},
    {"ENDIF", Action::None, Word, NoTest, 0, 0, Page, 0, StmtEndIf},
    {"LABEL", Action::None, Word, NoTest, 1, 0, Page, 0, StmtLabel},
    {"GOTO", Action::None, Word, NoTest, 1, 0, Page, 0, StmtGoto},
    {"IF", Action::None, Word, NoTest, 1, 0, Page, 0, StmtIf},
    {"SAVE", Action::None, Word, NoTest, 1, 80, Page},
    {"MAKE", Action::None, Word, NoTest, 2, 0, Page, 0, StmtMake},
    {"REPEAT", Action::None, Word, NoTest, inputs::Repeat, 30, Page},
    {"TO", Action::None, Word, NoTest, NotCounted, 0, Page, 0, StmtTo},
    {"END", Action::None, Word, NoTest, NotCounted, 0, Page, 0, StmtEnd},
    {"ELSE", Action::None, Word, NoTest, NotCounted, 0, Page, 0, StmtElse},
};
// clang-format on

constexpr std::array<ActionFacts, ActionCount> DeriveActions() noexcept {
  std::array<ActionFacts, ActionCount> actions{};
  for (const WordFacts& row : WordTable) {
    if (row.Does == Action::None) continue;
    ActionFacts& facts = actions[static_cast<std::size_t>(row.Does)];
    if (facts.Name.empty()) {
      facts = {row.Does, row.Match, row.Word, {}, row.Match, row.Missing};
    } else {
      facts.OtherName = row.Word;
      facts.OtherMatch = row.Match;
    }
  }
  return actions;
}

constexpr std::size_t PlacesTaken() noexcept {
  std::size_t places = 0;
  for (const WordFacts& row : WordTable) places += (row.Place != 0 ? 1U : 0U) + (row.SecondPlace != 0 ? 1U : 0U);
  return places;
}

constexpr auto DeriveCommandList() {
  std::array<std::string_view, PlacesTaken()> names{};
  for (const WordFacts& row : WordTable) {
    for (const int place : {row.Place, row.SecondPlace}) {
      if (place != 0) names.at(static_cast<std::size_t>(place - 1)) = row.Word;
    }
  }
  return names;
}

constexpr auto ActionTable = DeriveActions();
constexpr auto CommandNames = DeriveCommandList();

/// The rows of actions are in the order of the tests: whole lines first, each action's rows together.
constexpr bool ActionsAreInOrder() {
  Action last = Action::SayDeveloper;
  for (const WordFacts& row : WordTable) {
    if (row.Does < last) return false;
    last = row.Does;
  }
  return std::ranges::is_sorted(ActionTable, {}, &ActionFacts::Match) &&
         std::ranges::none_of(ActionTable, [](const ActionFacts& facts) { return facts.Name.empty(); });
}

constexpr bool EveryPlaceIsTakenOnce() {
  constexpr std::size_t mostPlaces = 100;
  return CommandNames.size() <= mostPlaces &&
         std::ranges::none_of(CommandNames, [](std::string_view name) { return name.empty(); });
}

constexpr bool NoWordHasTwoRows() {
  for (const WordFacts& row : WordTable) {
    if (std::ranges::count(WordTable, row.Word, &WordFacts::Word) != 1) return false;
  }
  return true;
}

static_assert(ActionsAreInOrder());
static_assert(EveryPlaceIsTakenOnce());
static_assert(NoWordHasTwoRows());

}  // namespace

std::span<const WordFacts> AllWords() noexcept { return WordTable; }

std::span<const ActionFacts, ActionCount> Actions() noexcept { return ActionTable; }

const ActionFacts& FactsOf(Action action) noexcept { return ActionTable[static_cast<std::size_t>(action)]; }

const WordFacts* FindWord(std::string_view word) {
  const auto* const row = std::ranges::find(WordTable, word, &WordFacts::Word);
  return row == std::end(WordTable) ? nullptr : row;
}

Action ActionOf(std::string_view line) {
  const WordFacts* const row = FindWord(line.substr(0, line.find(' ')));
  const bool matches = row != nullptr && (row->Match == MatchedBy::Word || row->Word == line);
  return matches ? row->Does : Action::None;
}

std::span<const std::string_view> CommandListNames() noexcept { return CommandNames; }

}  // namespace zerimo
