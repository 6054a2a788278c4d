#include "batch/latin1.h"

#include <cstdio>

#include "files/unicode_text.h"

namespace zerimo::batch {

namespace {

[[noreturn]] void RefuseCharacter(char32_t character) {
  char name[16];
  std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(character));
  throw TextError(std::string("the character ") + name + " is above U+00FF");
}

}  // namespace

std::string FromUtf8(std::string_view utf8) {
  if (!IsUtf8(utf8)) throw TextError("the text is not UTF-8");
  std::string text;
  text.reserve(utf8.size());
  for (std::size_t offset = 0; offset < utf8.size();) {
    const char32_t character = NextCharacter(utf8, offset);
    if (character > 0xFF) RefuseCharacter(character);
    text += static_cast<char>(static_cast<unsigned char>(character));
  }
  return text;
}

std::string ToUtf8(std::string_view latin1) { return Utf8FromLatin1(latin1); }

}  // namespace zerimo::batch
