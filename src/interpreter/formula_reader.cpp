#include "interpreter/formula_reader.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/variables.h"

namespace zerimo {

namespace {

using Kind = Operand::Kind;

/// Marks stand for replaced names in a text: nothing takes them for a name or a sign.
constexpr char FirstMark = '\x01';
constexpr char LastMark = '\x08';

bool IsMark(char character) noexcept { return character >= FirstMark && character <= LastMark; }

/// The text with its names replaced as the replacers do it, each by a mark.
class MarkedText {
 public:
  explicit MarkedText(std::string_view text) : text_(Trimmed(text)) {}

  bool Replace(const NamesInUse& names) {
    if (std::ranges::any_of(text_, [](char c) { return IsMark(c) || c == ' ' || c == '\r'; })) return false;
    if (!ReplaceCoordinates()) return false;
    for (const NamesInUse::Local& local : names.Locals) {
      if (!IsOrdinaryName(local.Name) || !ReplaceLocal(local)) return false;
    }
    return ReplaceGlobals(names);
  }

  const std::string& Text() const noexcept { return text_; }
  const Operand& At(char mark) const noexcept { return operands_[static_cast<std::size_t>(mark - FirstMark)]; }

 private:
  bool ReplaceCoordinates() {
    const std::pair<std::string_view, Kind> words[] = {{"XCOR", Kind::XCor}, {"YCOR", Kind::YCor}};
    for (const auto& [word, kind] : words) {
      while (Contains(text_, word)) {
        const int before = Length(text_);
        if (!Mark(word, {kind, 0, 0}) || Length(text_) == before) return false;
      }
    }
    return true;
  }

  bool ReplaceLocal(const NamesInUse::Local& local) {
    return !Contains(text_, local.Name) || Mark(local.Name, {Kind::Local, 0, local.Slot});
  }

  bool ReplaceGlobals(const NamesInUse& names) {
    for (std::string name = VariableName(); !name.empty(); name = VariableName()) {
      const int slot = names.GlobalSlot(name);
      const char mark = NextMark({Kind::Global, 0, slot});
      if (slot == 0 || mark == 0) return false;
      text_.replace(text_.find(name), name.size(), 1, mark);
    }
    return true;
  }

  /// `VariableFinder`, with marks taken for digits.
  std::string VariableName() const {
    std::string digits = text_;
    std::ranges::replace_if(digits, IsMark, '1');
    return VariableFinder(digits);
  }

  bool Mark(std::string_view name, const Operand& operand) {
    const char mark = NextMark(operand);
    if (mark == 0) return false;
    text_ = Trimmed(Textreplace(text_, name, std::string_view(&mark, 1)));
    return true;
  }

  char NextMark(const Operand& operand) {
    if (operands_.size() > static_cast<std::size_t>(LastMark - FirstMark)) return 0;
    operands_.push_back(operand);
    return static_cast<char>(FirstMark + static_cast<char>(operands_.size() - 1));
  }

  std::string text_;
  std::vector<Operand> operands_;
};

/// Puts the operations of a term into the order of the passes.
void OrderSteps(Formula::Term& term, std::string operators) {
  std::vector<std::uint8_t> places;
  for (std::size_t place = 0; place < term.Factors.size(); ++place) places.push_back(static_cast<std::uint8_t>(place));
  for (const char pass : {'%', '/', '*'}) {
    for (auto at = operators.find(pass); at != std::string::npos; at = operators.find(pass)) {
      term.Steps.push_back({pass, places[at], places[at + 1]});
      places.erase(places.begin() + static_cast<std::ptrdiff_t>(at) + 1);
      operators.erase(at, 1);
    }
  }
}

/// Reads one side from a text with marks.
class SideReader {
 public:
  SideReader(const MarkedText& marked, std::string_view text) : marked_(marked), rest_(text) {}

  std::optional<Formula::Side> Read() {
    if (!ReadSum(side_.Whole) || !rest_.empty()) return std::nullopt;
    return std::move(side_);
  }

 private:
  bool NextIs(std::string_view characters) const noexcept {
    return !rest_.empty() && characters.find(rest_.front()) != std::string_view::npos;
  }
  char Take() noexcept {
    const char character = rest_.front();
    rest_.remove_prefix(1);
    return character;
  }

  bool ReadSum(Formula::Sum& sum) {
    if (NextIs("+-")) sum.push_back({'+', {Operand{}}, {}});
    do {
      Formula::Term term;
      if (NextIs("+-")) term.Sign = Take();
      if (!ReadTerm(term)) return false;
      sum.push_back(std::move(term));
    } while (NextIs("+-"));
    return true;
  }

  bool ReadTerm(Formula::Term& term) {
    std::string operators;
    for (;;) {
      if (!ReadFactor(term) || term.Factors.size() == Formula::MostFactors) return false;
      if (!NextIs("%/*")) break;
      operators += Take();
    }
    OrderSteps(term, std::move(operators));
    return true;
  }

  bool ReadFactor(Formula::Term& term) {
    if (rest_.empty() || ++factors_ > Formula::MostFactors) return false;
    if (IsMark(rest_.front())) {
      term.Factors.push_back(marked_.At(Take()));
      return true;
    }
    if (rest_.front() == '(') return ReadBrackets(term);
    return ReadNumber(term);
  }

  bool ReadBrackets(Formula::Term& term) {
    Take();
    Formula::Sum sum;
    if (!ReadSum(sum) || rest_.empty() || Take() != ')') return false;
    term.Factors.push_back({Kind::Bracket, 0, static_cast<int>(side_.Brackets.size())});
    side_.Brackets.push_back(std::move(sum));
    return side_.Brackets.size() < Formula::MostFactors;
  }

  bool ReadNumber(Formula::Term& term) {
    const std::size_t end = std::min(rest_.find_first_not_of("0123456789."), rest_.size());
    const std::string_view number = rest_.substr(0, end);
    if (std::ranges::count(number, '.') > 1 || std::ranges::none_of(number, IsDigit) || end > MostExactDigits)
      return false;
    term.Factors.push_back({Kind::Constant, Val(number), 0});
    rest_.remove_prefix(end);
    return true;
  }

  const MarkedText& marked_;
  std::string_view rest_;
  Formula::Side side_;
  int factors_ = 0;
};

/// The comparison at the front of a text, or empty. "==" compares nothing and stays literal.
std::string_view ComparisonAt(std::string_view text) noexcept {
  for (const std::string_view comparison : {"<=", ">=", "!=", "<", ">", "!", "="}) {
    if (text.starts_with(comparison)) return comparison;
  }
  return {};
}

}  // namespace

bool IsOrdinaryName(std::string_view name) {
  std::string copy(name);
  return !name.empty() && std::ranges::none_of(name, IsMark) && VariableFinder(copy) == name;
}

std::optional<Formula> ReadFormula(std::string_view text, const NamesInUse& names) {
  constexpr std::size_t longest = 100;
  if (text.size() > longest) return std::nullopt;
  MarkedText marked(text);
  if (!marked.Replace(names)) return std::nullopt;
  const std::string_view whole = marked.Text();
  const auto at = std::min(whole.find_first_of("<>!="), whole.size());
  const std::string_view comparison = ComparisonAt(whole.substr(at));
  auto left = SideReader(marked, whole.substr(0, at)).Read();
  if (!left) return std::nullopt;
  if (comparison.empty()) return Formula{std::move(*left), std::nullopt, {}};
  auto right = SideReader(marked, whole.substr(at + comparison.size())).Read();
  if (!right) return std::nullopt;
  return Formula{std::move(*left), ComparisonOf(comparison), std::move(*right)};
}

}  // namespace zerimo
