#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/control_kinds.h"

namespace zerimo::batch {

/// One JSON object on one line, its keys in the order of the calls. Texts are single-byte and are written as UTF-8.
class JsonLine {
 public:
  /// Begins with the key `event`.
  explicit JsonLine(std::string_view event) { Text("event", event); }

  JsonLine& Text(std::string_view key, std::string_view value);
  JsonLine& Flag(std::string_view key, bool value);
  /// A whole number is written without a point, any other as the shortest text that reads back to the same value.
  JsonLine& Number(std::string_view key, double value);
  /// The same for a single: the shortest text that reads back to the same single.
  JsonLine& Single(std::string_view key, float value);
  JsonLine& Texts(std::string_view key, const std::vector<std::string>& values);
  /// An object whose keys are numbers, written as text, and whose values are texts.
  JsonLine& TextsByNumber(std::string_view key, const std::vector<std::pair<int, std::string>>& values);
  JsonLine& Property(std::string_view key, const PropertyValue& value);

  /// The whole object, without a line end.
  std::string Finished() const { return line_ + "}"; }

 private:
  void Key(std::string_view key);

  std::string line_ = "{";
};

}  // namespace zerimo::batch
