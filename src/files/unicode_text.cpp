#include "files/unicode_text.h"

#include <array>
#include <cstdint>

namespace zerimo {

namespace {

constexpr char32_t LastCharacter = 0x10FFFF;

bool IsSurrogate(char32_t character) noexcept { return character >= 0xD800 && character <= 0xDFFF; }

void AppendByte(std::string& text, char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); }

std::size_t BytesOf(unsigned char first) noexcept {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

/// The character that begins at an offset and its number of bytes; 0 bytes if none begins there.
struct Decoded {
  char32_t Character = ReplacementCharacter;
  std::size_t Bytes = 0;
};

Decoded Decode(std::string_view text, std::size_t offset) noexcept {
  static constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
  static constexpr std::array<unsigned, 5> bitsOfFirst = {0, 0x7F, 0x1F, 0x0F, 0x07};
  const auto first = static_cast<unsigned char>(text[offset]);
  const std::size_t bytes = BytesOf(first);
  if (bytes == 0 || text.size() - offset < bytes) return {};
  char32_t character = first & bitsOfFirst[bytes];
  for (std::size_t i = 1; i < bytes; ++i) {
    const auto next = static_cast<unsigned char>(text[offset + i]);
    if ((next & 0xC0) != 0x80) return {};
    character = (character << 6) | (next & 0x3FU);
  }
  if (character < least[bytes] || character > LastCharacter || IsSurrogate(character)) return {};
  return {character, bytes};
}

}  // namespace

void AppendUtf8(std::string& text, char32_t character) {
  if (character > LastCharacter || IsSurrogate(character)) character = ReplacementCharacter;
  if (character < 0x80) return AppendByte(text, character);
  if (character < 0x800) {
    AppendByte(text, 0xC0 | (character >> 6));
  } else {
    if (character < 0x10000) {
      AppendByte(text, 0xE0 | (character >> 12));
    } else {
      AppendByte(text, 0xF0 | (character >> 18));
      AppendByte(text, 0x80 | ((character >> 12) & 0x3F));
    }
    AppendByte(text, 0x80 | ((character >> 6) & 0x3F));
  }
  AppendByte(text, 0x80 | (character & 0x3F));
}

char32_t NextCharacter(std::string_view text, std::size_t& offset) noexcept {
  const Decoded decoded = Decode(text, offset);
  offset += decoded.Bytes == 0 ? 1 : decoded.Bytes;
  return decoded.Character;
}

bool IsUtf8(std::string_view bytes) noexcept {
  for (std::size_t offset = 0; offset < bytes.size();) {
    const Decoded decoded = Decode(bytes, offset);
    if (decoded.Bytes == 0) return false;
    offset += decoded.Bytes;
  }
  return true;
}

std::string Utf8FromLatin1(std::string_view text) {
  std::string utf8;
  for (const char character : text) AppendUtf8(utf8, static_cast<unsigned char>(character));
  return utf8;
}

std::string Latin1FromUtf8(std::string_view utf8) {
  std::string text;
  for (std::size_t offset = 0; offset < utf8.size();) {
    const char32_t character = NextCharacter(utf8, offset);
    AppendByte(text, character <= 0xFF ? character : U'?');
  }
  return text;
}

}  // namespace zerimo
