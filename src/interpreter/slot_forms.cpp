#include "interpreter/slot_forms.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"

namespace zerimo {

namespace {

constexpr std::size_t MostDigits = 15;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

bool IsPlainNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const auto digits = static_cast<std::size_t>(std::ranges::count_if(text, IsDigit));
  const auto points = static_cast<std::size_t>(std::ranges::count(text, '.'));
  return digits > 0 && digits <= MostDigits && points <= 1 && digits + points == text.size();
}

}  // namespace

SlotForm::SlotForm(std::string_view slot) {
  const auto equals = slot.find('=');
  if (equals == std::string_view::npos) return;
  KeyLength = equals + 1;
  const std::string_view value = slot.substr(KeyLength);
  if (!IsPlainNumber(value)) return;
  const double number = Val(value);
  // The text of a minus zero has a sign that its value has not.
  if (number != 0 || !std::signbit(number)) Number = number;
}

std::string_view NamePart(std::string_view slot) {
  const auto equals = slot.find('=');
  if (equals == std::string_view::npos) return slot;
  const bool isNumeric = slot.find_first_not_of("0123456789.E+-", equals + 1) == std::string_view::npos;
  return isNumeric ? slot.substr(0, equals + 1) : slot;
}

void NameStates::Change(std::size_t slot, std::string_view from, std::string_view to) {
  const std::uint64_t before = now_;
  std::uint64_t& next = Next(now_, slot, to);
  if (next != 0) {
    now_ = next;
    return;
  }
  now_ = next = ++last_;
  Next(now_, slot, from) = before;
}

/// The state that a change leads to, 0 while not known.
std::uint64_t& NameStates::Next(std::uint64_t state, std::size_t slot, std::string_view name) {
  constexpr std::size_t mostKept = 50'000;
  // What is forgotten gets new numbers.
  if (next_.size() >= mostKept) next_.clear();
  constexpr unsigned slotBits = 9;
  constexpr unsigned nameBits = 20;
  const std::uint64_t known = FindOrMake(names_, name, [this] { return ++lastName_; });
  if (known >= std::uint64_t{1} << nameBits) return unknown_ = 0;
  return next_[(state << nameBits | known) << slotBits | slot];
}

}  // namespace zerimo
