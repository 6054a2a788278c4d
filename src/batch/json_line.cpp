#include "batch/json_line.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "batch/latin1.h"

namespace zerimo::batch {

namespace {

void AppendEscaped(std::string& line, char character) {
  switch (character) {
    case '"':
      line += "\\\"";
      return;
    case '\\':
      line += "\\\\";
      return;
    case '\n':
      line += "\\n";
      return;
    case '\r':
      line += "\\r";
      return;
    case '\t':
      line += "\\t";
      return;
    default:
      break;
  }
  const auto code = static_cast<unsigned char>(character);
  if (code < 0x20) {
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(code));
    line += escape;
  } else {
    line += ToUtf8({&character, 1});
  }
}

bool IsPlain(char character) noexcept {
  return character >= ' ' && character <= '~' && character != '"' && character != '\\';
}

void AppendText(std::string& line, std::string_view latin1) {
  line += '"';
  for (const char character : latin1) {
    if (IsPlain(character)) {
      line += character;
    } else {
      AppendEscaped(line, character);
    }
  }
  line += '"';
}

/// Room for all digits of the greatest double and its sign.
constexpr std::size_t MostCharacters = 320;

template <typename Float>
void AppendNumber(std::string& line, Float value) {
  if (!std::isfinite(value)) {
    line += "null";
    return;
  }
  if (value == 0) value = 0;  // no "-0"
  char digits[MostCharacters];
  // A whole number has neither a point nor an exponent, however long it is.
  const bool whole = std::trunc(value) == value;
  const std::to_chars_result end = whole
                                       ? std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed)
                                       : std::to_chars(digits, digits + sizeof digits, value);
  line.append(digits, end.ptr);
}

}  // namespace

void JsonLine::Key(std::string_view key) {
  if (line_.size() > 1) line_ += ',';
  AppendText(line_, key);
  line_ += ':';
}

JsonLine& JsonLine::Text(std::string_view key, std::string_view value) {
  Key(key);
  AppendText(line_, value);
  return *this;
}

JsonLine& JsonLine::Flag(std::string_view key, bool value) {
  Key(key);
  line_ += value ? "true" : "false";
  return *this;
}

JsonLine& JsonLine::Number(std::string_view key, double value) {
  Key(key);
  AppendNumber(line_, value);
  return *this;
}

JsonLine& JsonLine::Single(std::string_view key, float value) {
  Key(key);
  AppendNumber(line_, value);
  return *this;
}

JsonLine& JsonLine::Texts(std::string_view key, const std::vector<std::string>& values) {
  Key(key);
  line_ += '[';
  for (const std::string& value : values) {
    if (&value != &values.front()) line_ += ',';
    AppendText(line_, value);
  }
  line_ += ']';
  return *this;
}

JsonLine& JsonLine::TextsByNumber(std::string_view key, const std::vector<std::pair<int, std::string>>& values) {
  Key(key);
  line_ += '{';
  for (const auto& [number, value] : values) {
    if (number != values.front().first) line_ += ',';
    AppendText(line_, std::to_string(number));
    line_ += ':';
    AppendText(line_, value);
  }
  line_ += '}';
  return *this;
}

JsonLine& JsonLine::Property(std::string_view key, const PropertyValue& value) {
  struct Writer {
    JsonLine& Object;
    std::string_view Key;
    JsonLine& operator()(bool flag) const { return Object.Flag(Key, flag); }
    JsonLine& operator()(double number) const { return Object.Number(Key, number); }
    JsonLine& operator()(float number) const { return Object.Single(Key, number); }
    JsonLine& operator()(const std::string& text) const { return Object.Text(Key, text); }
    JsonLine& operator()(const std::vector<std::string>& texts) const { return Object.Texts(Key, texts); }
  };
  return std::visit(Writer{*this, key}, value);
}

}  // namespace zerimo::batch
