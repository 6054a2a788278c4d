#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// The border between UTF-8 outside and single-byte text inside, where a code is the character's number.
namespace zerimo::batch {

/// Bytes that are not UTF-8, or a character above U+00FF.
class TextError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Fails with `TextError`.
std::string FromUtf8(std::string_view utf8);

std::string ToUtf8(std::string_view latin1);

}  // namespace zerimo::batch
