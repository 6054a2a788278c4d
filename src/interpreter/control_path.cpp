#include "interpreter/control_path.h"

#include <charconv>
#include <utility>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace zerimo {

namespace {

/// The last component with its leading ".". Never fails.
std::string_view LastComponent(std::string_view path) {
  const int dot = LastPositionOf(path, '.');
  return dot == 0 ? path : From(path, dot);
}

/// What `CurrentProcedureRemover` leaves, without copying it. Never fails.
std::string_view WithoutLastComponent(std::string_view path) {
  const int dot = LastPositionOf(path, '.');
  return dot <= 1 || path.find('.') == static_cast<std::size_t>(dot - 1) ? std::string_view(".") : Left(path, dot - 1);
}

}  // namespace

const std::string& ControlPath::CtrlStr() const {
  if (!textIsMade_) {
    text_ = head_ + (reached_.Form == Lead::Blank ? Str(reached_.Line) : StrTrimmed(reached_.Line));
    textIsMade_ = true;
  }
  return text_;
}

void ControlPath::SetCtrlStr(std::string text) {
  head_ = FirstPartExtractor(text);
  reached_ =
      head_.empty() || head_.front() == ' ' ? Reached{} : ReadReached(std::string_view(text).substr(head_.size()));
  text_ = std::move(text);
  textIsMade_ = true;
  if (!reached_.IsKnown()) head_ = text_;
  HeadHasChanged();
}

/// Reads only what `WriteLine` writes: other spellings of a number stay text.
ControlPath::Reached ControlPath::ReadReached(std::string_view text) {
  constexpr std::size_t mostDigits = 9;
  const Lead form = text.starts_with(' ') ? Lead::Blank : Lead::None;
  const std::string_view digits = text.substr(form == Lead::Blank ? 1 : 0);
  if (digits.empty() || digits.size() > mostDigits || (digits.front() == '0' && digits.size() > 1)) return {};
  if (digits.find_first_not_of("0123456789") != std::string_view::npos) return {};
  Reached reached{0, form};
  std::from_chars(digits.data(), digits.data() + digits.size(), reached.Line);
  return reached;
}

void ControlPath::HeadHasChanged() {
  procedureName_.clear();
  recursionAt_ = {};
  SkipOnFailure([&] { procedureName_ = CurrentProcedureName(); });
  procedureNumber_ = FindOrMake(numbers_, procedureName_, [this] { return ++lastNumber_; });
  if (!reached_.IsKnown()) return;
  const std::string_view last = LastComponent(head_);
  const std::string_view before = LastComponent(WithoutLastComponent(head_));
  if (before.starts_with(last)) recursionAt_ = ReadReached(before.substr(last.size()));
}

void ControlPath::WriteAsText(int line, Lead lead) {
  SetCtrlStr(FirstPartExtractor(CtrlStr()) + (lead == Lead::Blank ? Str(line) : StrTrimmed(line)));
}

void ControlPath::Enter(int callLine, std::string_view procedure, int firstLine) {
  WriteLine(callLine, Lead::Blank);
  SetCtrlStr(CtrlStr() + "." + std::string(procedure) + "-" + Str(firstLine));
}

bool ControlPath::Leave() {
  const int dot = LastPositionOf(head_, '.');
  if (dot <= 1) {
    SetCtrlStr(".");
    return false;
  }
  SetCtrlStr(std::string(Left(head_, dot - 1)));
  return true;
}

std::int16_t ControlPath::ReadLine() const {
  return reached_.IsKnown() ? ToInt16(reached_.Line) : EndValExtractor(CtrlStr());
}

void ControlPath::TidyText() {
  if (CtrlStr() == "1") SetCtrlStr(".");
  std::string text(Trimmed(CtrlStr()));
  SkipOnFailure([&] { text = RecursionChecker(text); });
  SetCtrlStr(std::move(text));
}

std::string ControlPath::CurrentProcedureName() const {
  if (head_ == ".") return {};
  const int dot = LastPositionOf(head_, '.');
  const int dash = LastPositionOf(head_, '-');
  return std::string(Trimmed(Mid(head_, dot + 1, dash - dot - 1)));
}

std::string FirstPartExtractor(std::string_view text) { return std::string(Left(text, LastPositionOf(text, '-'))); }

std::int16_t EndValExtractor(std::string_view text) {
  return ToInt16(Val(Trimmed(From(text, LastPositionOf(text, '-') + 1))));
}

std::string GetProcNameFromProcedureCall(std::string_view procedureCall) {
  const int blank = PositionOf(procedureCall, " ");
  return std::string(Trimmed(blank == 0 ? procedureCall : Left(procedureCall, blank)));
}

std::string CurrentProcedureRemover(std::string_view path) { return std::string(WithoutLastComponent(path)); }

std::string RecursionChecker(std::string& path) {
  const std::string_view rest = WithoutLastComponent(path);
  if (LastComponent(path) == LastComponent(rest)) path = std::string(rest);
  return path;
}

int RightMostDotPos(std::string_view text) noexcept { return LastPositionOf(text, '.'); }

std::string ForwardCtrlString(std::string_view text) {
  const int dash = LastPositionOf(text, '-');
  const double next = Val(From(text, dash + 1)) + 1;
  return std::string(Trimmed(Left(text, dash == 0 ? 0 : dash - 1))) + "-" + StrTrimmed(next);
}

}  // namespace zerimo
