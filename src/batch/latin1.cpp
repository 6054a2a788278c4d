#include "batch/latin1.h"

#include <cstdint>
#include <cstdio>

namespace zerimo::batch {

namespace {

/// How many bytes a character has by its first byte; 0 if no character begins so.
std::size_t BytesOfCharacter(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

[[noreturn]] void RefuseBytes() { throw TextError("the text is not UTF-8"); }

/// The character at the front of the text, which loses it.
std::uint32_t TakeCharacter(std::string_view& utf8) {
  static constexpr std::uint32_t leadMasks[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  static constexpr std::uint32_t leastOf[] = {0, 0, 0x80, 0x800, 0x10000};
  const auto first = static_cast<unsigned char>(utf8.front());
  const std::size_t count = BytesOfCharacter(first);
  if (count == 0 || utf8.size() < count) RefuseBytes();
  std::uint32_t code = first & leadMasks[count];
  for (std::size_t i = 1; i < count; ++i) {
    const auto next = static_cast<unsigned char>(utf8[i]);
    if ((next & 0xC0) != 0x80) RefuseBytes();
    code = (code << 6) | (next & 0x3FU);
  }
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < leastOf[count] || code > 0x10FFFF || surrogate) RefuseBytes();
  utf8.remove_prefix(count);
  return code;
}

[[noreturn]] void RefuseCharacter(std::uint32_t code) {
  char name[16];
  std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(code));
  throw TextError(std::string("the character ") + name + " is above U+00FF");
}

}  // namespace

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::uint32_t code = TakeCharacter(utf8);
    if (code > 0xFF) RefuseCharacter(code);
    text += static_cast<char>(static_cast<unsigned char>(code));
  }
  return text;
}

std::string ToUtf8(std::string_view latin1) {
  std::string text;
  text.reserve(latin1.size());
  for (const char character : latin1) {
    const auto code = static_cast<unsigned char>(character);
    if (code < 0x80) {
      text += character;
    } else {
      text += static_cast<char>(0xC0 | (code >> 6));
      text += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return text;
}

}  // namespace zerimo::batch
