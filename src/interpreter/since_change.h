#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zerimo {

/// A value that is valid as long as a count of changes stays the same.
/// Behaviour: docs/interpreter.md, "Beside a line of the store".
template <typename Value>
class SinceChange {
 public:
  /// The value kept for that count, or the one that `make` gives; if `make` fails, nothing is kept.
  template <typename Make>
  Value& Get(std::uint64_t changes, Make&& make) {
    return changes == changes_ ? *value_ : Renew(changes, make);
  }

 private:
  template <typename Make>
  [[gnu::noinline]] Value& Renew(std::uint64_t changes, Make& make) {
    changes_ = Never;
    value_ = make();
    changes_ = changes;
    return *value_;
  }

  static constexpr std::uint64_t Never = std::numeric_limits<std::uint64_t>::max();

  std::optional<Value> value_;
  std::uint64_t changes_ = Never;
};

struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>{}(text); }
};

/// A map from texts to values; a look-up copies no text.
template <typename Value>
using TextMap = std::unordered_map<std::string, Value, TextHash, std::equal_to<>>;

/// The value for a text, made if there is none yet; if `make` fails, nothing is kept. A map that has grown large is
/// emptied first.
template <typename Value, typename Make>
Value& FindOrMake(TextMap<Value>& map, std::string_view text, Make&& make) {
  constexpr std::size_t mostKept = 4000;
  if (const auto found = map.find(text); found != map.end()) return found->second;
  if (map.size() >= mostKept) map.clear();
  Value value = make();
  return map.emplace(std::string(text), std::move(value)).first->second;
}

}  // namespace zerimo
