#pragma once

namespace zerimo {

/// The code page of rich text that names none.
inline constexpr int WesternCodePage = 1252;

/// The character of a byte in a code page: 437, 850, 1250, 1251, 1252 or 10000 (Macintosh). An unknown code page is
/// read as 1252.
char32_t CharacterOf(int codePage, unsigned char byte);

/// The code page of a font's character set, or 0 if the set is that of the document.
int CodePageOfCharset(int charset) noexcept;

}  // namespace zerimo
