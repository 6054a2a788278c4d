#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "interpreter/since_change.h"

namespace zerimo {

/// What follows from the text of a variable slot.
struct SlotForm {
  SlotForm() = default;
  explicit SlotForm(std::string_view slot);

  /// The length of the name with its "=", or 0 if there is none.
  std::size_t KeyLength = 0;
  /// The value, if its text is nothing but digits, a point and a minus sign.
  std::optional<double> Number;
};

/// The part of a slot's text that decides which searches find it: all of it, or what stands up to the "=" in front of a
/// number.
std::string_view NamePart(std::string_view slot);

/// The state of the names in all slots. The number of a state stands for the same names in the same slots as long as
/// the system runs; the same names may come back under another number.
class NameStates {
 public:
  std::uint64_t Now() const { return now_; }

  /// A slot's name part changes.
  void Change(std::size_t slot, std::string_view from, std::string_view to);

 private:
  std::uint64_t& Next(std::uint64_t state, std::size_t slot, std::string_view name);

  std::uint64_t now_ = 1;
  std::uint64_t last_ = 1;
  TextMap<std::uint64_t> names_;
  std::uint64_t lastName_ = 0;
  std::unordered_map<std::uint64_t, std::uint64_t> next_;
  std::uint64_t unknown_ = 0;
};

}  // namespace zerimo
