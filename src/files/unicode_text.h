#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The border between the system's single-byte text, where a code is the character's number, and the UTF-8 of file
/// names and rich text.
namespace zerimo {

/// The code page of rich text that names none.
inline constexpr int WesternCodePage = 1252;

/// The character of a byte in a code page: 437, 850, 1250, 1251, 1252 or 10000 (Macintosh). An unknown code page is
/// read as 1252.
char32_t CharacterOf(int codePage, unsigned char byte);

/// The code page of a font's character set, or 0 if the set is that of the document.
int CodePageOfCharset(int charset) noexcept;

/// Stands for what is not a character: bytes that are not UTF-8, halves of a pair, numbers beyond the last character.
inline constexpr char32_t ReplacementCharacter = 0xFFFD;

/// Adds a character to UTF-8 text.
void AppendUtf8(std::string& text, char32_t character);

/// The character at an offset of UTF-8 text; moves the offset past it. A byte that is not UTF-8 counts alone as the
/// replacement character.
char32_t NextCharacter(std::string_view text, std::size_t& offset) noexcept;

bool IsUtf8(std::string_view bytes) noexcept;

std::string Utf8FromLatin1(std::string_view text);

/// With a question mark for each character above U+00FF.
std::string Latin1FromUtf8(std::string_view utf8);

}  // namespace zerimo
