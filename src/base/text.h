#pragma once

#include <string>
#include <string_view>

/// Text is single-byte: a character is its code, 0 to 255. Positions count from 1; 0 means "not found".
namespace zerimo {

/// The text without the blanks (code 32, nothing else) at its two ends.
std::string_view Trimmed(std::string_view text) noexcept;

/// Trims the caller's text in place.
void Trim(std::string& text);

/// Capitals; letters above code 127 follow Latin-1 (223 and 255 have no capital there and stay).
std::string UpperCase(std::string_view text);

/// The character at a position from 1, or the empty text past the end. A position below 1 fails (invalid argument).
std::string_view CharacterAt(std::string_view text, int position);

/// The first `length` characters, or all of them if there are fewer. A negative length fails (invalid argument).
std::string_view Left(std::string_view text, int length);

/// At most `length` characters from a position on; the empty text past the end. A position below 1 or a negative
/// length fails (invalid argument).
std::string_view Mid(std::string_view text, int position, int length);

/// All characters from a position on; the empty text past the end. A position below 1 fails (invalid argument).
std::string_view From(std::string_view text, int position);

/// Position of the first occurrence of `pattern` in `text`, or 0. The empty pattern is found at 1 in a text that is
/// not empty.
int PositionOf(std::string_view text, std::string_view pattern) noexcept;

/// Position of the last occurrence of a character, or 0.
int LastPositionOf(std::string_view text, char character) noexcept;

/// Whether `pattern` occurs anywhere in `text`.
bool Contains(std::string_view text, std::string_view pattern) noexcept;

int Length(std::string_view text) noexcept;

/// Whether the text begins, blanks aside, and ends with a double quote. One quote alone does both.
bool IsQuoted(std::string_view text) noexcept;

/// All characters but the first and the last, whatever they are. Fails (invalid argument) if there are not two.
std::string WithoutEnds(std::string_view text);

}  // namespace zerimo
