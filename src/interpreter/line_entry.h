#pragma once

#include <string>
#include <string_view>

#include "interpreter/statement_class.h"

/// Reading lines. Behaviour: docs/interpreter.md, "Reading a line".
namespace zerimo {

/// The filter of typed and edited text: trims the caller's text and returns it with its runs of blanks and the blanks
/// beside operators and brackets tidied. Fails (overflow) at 32767 characters or more.
std::string SpaceFilter(std::string& text);

/// The class of a line, from a few tests on its text. Never fails.
StatementClass WhatIsThis(std::string_view line);

/// The n-th word of a text, or the empty text. The caller's text is trimmed and gets one blank at its end. Fails
/// (subscript) at 50 words or more, and for a number over 50.
std::string GiveWord(std::string& text, int nthWord);

}  // namespace zerimo
