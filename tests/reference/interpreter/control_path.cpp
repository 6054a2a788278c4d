#include "reference/interpreter/control_path.h"

#include "base/text.h"
#include "reference/base/numbers.h"

namespace zerimo::reference {

namespace {

/// The last component with its leading ".".
std::string_view LastComponent(std::string_view path) {
  const int dot = LastPositionOf(path, '.');
  return dot == 0 ? path : From(path, dot);
}

/// What `CurrentProcedureRemover` leaves, without copying it.
std::string_view WithoutLastComponent(std::string_view path) {
  const int dot = LastPositionOf(path, '.');
  return dot <= 1 || path.find('.') == static_cast<std::size_t>(dot - 1) ? std::string_view(".") : Left(path, dot - 1);
}

}  // namespace

std::string ControlPath::CurrentProcedureName() const {
  if (path_ == ".") return {};
  const int dot = LastPositionOf(path_, '.');
  const int dash = LastPositionOf(path_, '-');
  return std::string(Trimmed(Mid(path_, dot + 1, dash - dot - 1)));
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

int RightMostDotPos(std::string_view text) { return LastPositionOf(text, '.'); }

std::string ForwardCtrlString(std::string_view text) {
  const int dash = LastPositionOf(text, '-');
  const double next = Val(From(text, dash + 1)) + 1;
  return std::string(Trimmed(Left(text, dash == 0 ? 0 : dash - 1))) + "-" + StrTrimmed(next);
}

}  // namespace zerimo::reference
