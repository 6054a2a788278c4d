#include "base/text.h"

#include <algorithm>

#include "base/failure.h"

namespace zerimo {

namespace {

std::size_t Offset(int position) {
  if (position < 1) throw Failure(FailureKind::InvalidArgument);
  return static_cast<std::size_t>(position - 1);
}

char Capital(char character) noexcept {
  const auto code = static_cast<unsigned char>(character);
  const bool small = (code >= 'a' && code <= 'z') || (code >= 224 && code <= 254 && code != 247);
  return small ? static_cast<char>(code - 32) : character;
}

}  // namespace

std::string_view Trimmed(std::string_view text) noexcept {
  if (!text.empty() && text.front() != ' ' && text.back() != ' ') return text;
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void Trim(std::string& text) {
  if (!text.empty() && (text.front() == ' ' || text.back() == ' ')) text = std::string(Trimmed(text));
}

std::string UpperCase(std::string_view text) {
  std::string capitals(text);
  std::transform(capitals.begin(), capitals.end(), capitals.begin(), Capital);
  return capitals;
}

std::string_view CharacterAt(std::string_view text, int position) { return Mid(text, position, 1); }

std::string_view Left(std::string_view text, int length) { return Mid(text, 1, length); }

std::string_view Mid(std::string_view text, int position, int length) {
  if (length < 0) throw Failure(FailureKind::InvalidArgument);
  return From(text, position).substr(0, static_cast<std::size_t>(length));
}

std::string_view From(std::string_view text, int position) {
  const std::size_t offset = Offset(position);
  return offset < text.size() ? text.substr(offset) : std::string_view{};
}

int PositionOf(std::string_view text, std::string_view pattern) noexcept {
  if (text.empty()) return 0;
  const auto found = text.find(pattern);
  return found == std::string_view::npos ? 0 : static_cast<int>(found) + 1;
}

int LastPositionOf(std::string_view text, char character) noexcept {
  const auto found = text.rfind(character);
  return found == std::string_view::npos ? 0 : static_cast<int>(found) + 1;
}

bool Contains(std::string_view text, std::string_view pattern) noexcept { return PositionOf(text, pattern) != 0; }

int Length(std::string_view text) noexcept { return static_cast<int>(text.size()); }

bool IsQuoted(std::string_view text) noexcept { return Trimmed(text).starts_with('"') && text.ends_with('"'); }

std::string WithoutEnds(std::string_view text) { return std::string(Mid(text, 2, Length(text) - 2)); }

}  // namespace zerimo
