#include "interpreter/slot_forms.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/failure.h"
#include "base/numbers.h"

namespace zerimo {

namespace {

bool IsPlainNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const auto digits = static_cast<std::size_t>(std::ranges::count_if(text, IsDigit));
  const auto points = static_cast<std::size_t>(std::ranges::count(text, '.'));
  return digits > 0 && digits <= MostExactDigits && points <= 1 && digits + points == text.size();
}

}  // namespace

SlotForm::SlotForm(std::string_view slot) {
  const auto equals = slot.find('=');
  if (equals == std::string_view::npos) return;
  KeyLength = equals + 1;
  const std::string_view value = slot.substr(KeyLength);
  if (!IsPlainNumber(value)) return;
  const double number = Val(value);
  // The number would lose the sign of a minus zero's text.
  if (number == 0 && std::signbit(number)) return;
  Number = number;
  Pasted = PlainOrNone(IsWhole(number) ? number : RoundToDecimals(number, 2));
}

SlotTable::Slot& SlotTable::At(int number) const {
  if (number < 1 || number > SlotCount) throw Failure(FailureKind::SubscriptOutOfRange);
  return slots_[static_cast<std::size_t>(number - 1)];
}

const std::string& SlotTable::Text(int number) const {
  Slot& slot = At(number);
  if (!slot.IsWritten) {
    slot.Text.replace(slot.Form.KeyLength, std::string::npos, StrTrimmed(slot.Form.Number));
    slot.IsWritten = true;
  }
  return slot.Text;
}

void SlotTable::SetText(int number, std::string text) {
  Slot& slot = At(number);
  slot.Form = SlotForm(text);
  slot.Text = std::move(text);
  slot.IsWritten = true;
}

[[gnu::noinline]] void SlotTable::WriteNumber(int number, double value) {
  const Slot& slot = At(number);
  SetText(number, slot.Text.substr(0, slot.Form.KeyLength) + StrTrimmed(value));
}

std::string_view NamePart(std::string_view slot) noexcept {
  const auto equals = slot.find('=');
  if (equals == std::string_view::npos) return slot;
  const bool isNumeric = slot.find_first_not_of("0123456789.E+-", equals + 1) == std::string_view::npos;
  return isNumeric ? slot.substr(0, equals + 1) : slot;
}

void NameStates::Change(std::size_t slot, std::string_view name) {
  constexpr std::size_t mostChangesKept = 20'000;
  constexpr unsigned slotBits = 9;
  constexpr unsigned nameBits = 24;
  const std::uint32_t number = NumberOf(name);
  if (slot >= slots_.size()) slots_.resize(slot + 1);
  slots_[slot] = number;
  if (number >> nameBits != 0) {
    now_ = StateOf(slots_);
    return;
  }
  if (next_.size() >= mostChangesKept) next_.clear();
  std::uint64_t& next = next_[(now_ << nameBits | number) << slotBits | slot];
  if (next == 0) next = StateOf(slots_);
  now_ = next;
}

std::uint32_t NameStates::NumberOf(std::string_view name) {
  return name.empty() ? 0 : FindOrMake(names_, name, [this] { return ++lastName_; });
}

std::uint64_t NameStates::StateOf(Names names) {
  constexpr std::size_t mostKept = 1000;
  while (!names.empty() && names.back() == 0) names.pop_back();
  // Forgotten states get new numbers.
  if (states_.size() >= mostKept) states_.clear();
  const auto [state, isNew] = states_.try_emplace(std::move(names), lastState_ + 1);
  if (isNew) ++lastState_;
  return state->second;
}

}  // namespace zerimo
