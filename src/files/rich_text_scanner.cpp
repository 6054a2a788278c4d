#include "files/rich_text_scanner.h"

#include <algorithm>

namespace zerimo {

namespace {

constexpr int GreatestNumber = 0x7FFFFFFF;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsPlain(char c) { return c >= 32 && c <= 126 && c != '{' && c != '}' && c != '\\'; }

int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

RtfToken RtfScanner::Next() {
  // Line ends are only there for people.
  while (at < rtf.size() && (rtf[at] == '\r' || rtf[at] == '\n')) ++at;
  if (at == rtf.size()) return {};
  RtfToken token;
  switch (rtf[at]) {
    case '{':
      ++at;
      token.Is = RtfToken::Kind::GroupStart;
      return token;
    case '}':
      ++at;
      token.Is = RtfToken::Kind::GroupEnd;
      return token;
    case '\\':
      ++at;
      return ControlToken();
    default:
      return TextToken();
  }
}

RtfToken RtfScanner::TextToken() {
  RtfToken token;
  if (!IsPlain(rtf[at])) {
    token.Is = RtfToken::Kind::Character;
    token.Byte = static_cast<unsigned char>(rtf[at++]);
    return token;
  }
  const std::size_t begin = at;
  while (at < rtf.size() && IsPlain(rtf[at])) ++at;
  token.Is = RtfToken::Kind::Text;
  token.Name = rtf.substr(begin, at - begin);
  return token;
}

RtfToken RtfScanner::ControlToken() {
  if (at == rtf.size()) return {};
  if (IsLetter(rtf[at])) return WordToken();
  if (rtf[at] == '\'') return HexToken();
  RtfToken token;
  token.Is = RtfToken::Kind::Symbol;
  token.Byte = static_cast<unsigned char>(rtf[at++]);
  // A backslash in front of a line end: the two characters of the line end are one.
  if (token.Byte == '\r' && at < rtf.size() && rtf[at] == '\n') ++at;
  return token;
}

RtfToken RtfScanner::HexToken() {
  RtfToken token;
  token.Is = RtfToken::Kind::Character;
  const int high = at + 1 < rtf.size() ? HexDigit(rtf[at + 1]) : -1;
  const int low = at + 2 < rtf.size() ? HexDigit(rtf[at + 2]) : -1;
  if (high < 0 || low < 0) {
    // No two digits: the apostrophe stands for itself.
    token.Byte = '\'';
    ++at;
    return token;
  }
  token.Byte = static_cast<unsigned char>(16 * high + low);
  at += 3;
  return token;
}

RtfToken RtfScanner::WordToken() {
  RtfToken token;
  token.Is = RtfToken::Kind::Word;
  const std::size_t begin = at;
  while (at < rtf.size() && IsLetter(rtf[at])) ++at;
  token.Name = rtf.substr(begin, at - begin);

  const bool isNegative = at + 1 < rtf.size() && rtf[at] == '-' && IsDigit(rtf[at + 1]);
  if (isNegative) ++at;
  long long number = 0;
  for (; at < rtf.size() && IsDigit(rtf[at]); ++at) {
    token.HasNumber = true;
    number = std::min<long long>(10 * number + (rtf[at] - '0'), GreatestNumber);
  }
  token.Number = static_cast<int>(isNegative ? -number : number);

  if (at < rtf.size() && rtf[at] == ' ') ++at;
  if (token.Name == "bin") {
    token.Is = RtfToken::Kind::Binary;
    at += std::min(static_cast<std::size_t>(std::max(token.Number, 0)), rtf.size() - at);
  }
  return token;
}

}  // namespace zerimo
