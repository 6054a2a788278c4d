#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/control_kinds.h"
#include "reference/interpreter/statement_class.h"
#include "reference/interpreter/store.h"

namespace zerimo::reference {

/// Behaviour of all these: docs/interpreter.md, "Reading a line".
/// The filter of typed and edited text: trims the caller's text and returns it with its runs of blanks and the blanks
/// beside operators and brackets tidied. Fails (overflow) at 32767 characters or more.
std::string SpaceFilter(std::string& text);

/// The class of a line, from a few tests on its text. Never fails.
StatementClass WhatIsThis(std::string_view line);

/// The n-th word of a text, or the empty text. The caller's text is trimmed and gets one blank at its end. Fails
/// (subscript) at 50 words or more, and for a number over 50.
std::string GiveWord(std::string& text, int nthWord);

/// The number of inputs of a word, or a negative marker (`inputs::`). A word that is not a primitive is looked up in
/// the store. Fails (overflow) at a header with no blank or more than 255.
std::int16_t HowManyInput(std::string_view command, const Store& store);

/// Empties `List3` and adds to `List4` a line for each defined procedure.
void DefinedStatement(Store& store, ListBox& list3, ListBox& list4);

}  // namespace zerimo::reference
