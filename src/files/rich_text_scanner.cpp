#include "files/rich_text_scanner.h"

#include <algorithm>

#include "base/numbers.h"

namespace zerimo {

namespace {

constexpr int GreatestNumber = 0x7FFFFFFF;

bool IsLetter(char c) noexcept { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsPlain(char c) noexcept { return c >= 32 && c <= 126 && c != '{' && c != '}' && c != '\\'; }

int HexDigit(char c) noexcept {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

RtfToken RtfScanner::Next() {
  // Line ends are only for human readers.
  while (at_ < rtf_.size() && (rtf_[at_] == '\r' || rtf_[at_] == '\n')) ++at_;
  if (at_ == rtf_.size()) return {};
  RtfToken token;
  switch (rtf_[at_]) {
    case '{':
      ++at_;
      token.Is = RtfToken::Kind::GroupStart;
      return token;
    case '}':
      ++at_;
      token.Is = RtfToken::Kind::GroupEnd;
      return token;
    case '\\':
      ++at_;
      return ControlToken();
    default:
      return TextToken();
  }
}

RtfToken RtfScanner::TextToken() noexcept {
  RtfToken token;
  if (!IsPlain(rtf_[at_])) {
    token.Is = RtfToken::Kind::Character;
    token.Byte = static_cast<unsigned char>(rtf_[at_++]);
    return token;
  }
  const std::size_t begin = at_;
  while (at_ < rtf_.size() && IsPlain(rtf_[at_])) ++at_;
  token.Is = RtfToken::Kind::Text;
  token.Name = rtf_.substr(begin, at_ - begin);
  return token;
}

RtfToken RtfScanner::ControlToken() {
  if (at_ == rtf_.size()) return {};
  if (IsLetter(rtf_[at_])) return WordToken();
  if (rtf_[at_] == '\'') return HexToken();
  RtfToken token;
  token.Is = RtfToken::Kind::Symbol;
  token.Byte = static_cast<unsigned char>(rtf_[at_++]);
  // After a backslash the two characters of a line end count as one.
  if (token.Byte == '\r' && at_ < rtf_.size() && rtf_[at_] == '\n') ++at_;
  return token;
}

RtfToken RtfScanner::HexToken() noexcept {
  RtfToken token;
  token.Is = RtfToken::Kind::Character;
  const int high = at_ + 1 < rtf_.size() ? HexDigit(rtf_[at_ + 1]) : -1;
  const int low = at_ + 2 < rtf_.size() ? HexDigit(rtf_[at_ + 2]) : -1;
  if (high < 0 || low < 0) {
    // No two digits: the apostrophe stands for itself.
    token.Byte = '\'';
    ++at_;
    return token;
  }
  token.Byte = static_cast<unsigned char>(16 * high + low);
  at_ += 3;
  return token;
}

RtfToken RtfScanner::WordToken() {
  RtfToken token;
  token.Is = RtfToken::Kind::Word;
  const std::size_t begin = at_;
  while (at_ < rtf_.size() && IsLetter(rtf_[at_])) ++at_;
  token.Name = rtf_.substr(begin, at_ - begin);

  const bool isNegative = at_ + 1 < rtf_.size() && rtf_[at_] == '-' && IsDigit(rtf_[at_ + 1]);
  if (isNegative) ++at_;
  long long number = 0;
  for (; at_ < rtf_.size() && IsDigit(rtf_[at_]); ++at_) {
    token.HasNumber = true;
    number = std::min<long long>(10 * number + (rtf_[at_] - '0'), GreatestNumber);
  }
  token.Number = static_cast<int>(isNegative ? -number : number);

  if (at_ < rtf_.size() && rtf_[at_] == ' ') ++at_;
  if (token.Name == "bin") {
    token.Is = RtfToken::Kind::Binary;
    at_ += std::min(static_cast<std::size_t>(std::max(token.Number, 0)), rtf_.size() - at_);
  }
  return token;
}

}  // namespace zerimo
