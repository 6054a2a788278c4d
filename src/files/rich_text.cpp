#include "files/rich_text.h"

namespace zerimo {

namespace {

constexpr std::string_view LineEnd = "\r\n";

void AppendPlainText(std::string& plain, const Paragraph& paragraph) {
  for (const TextRun& run : paragraph.Runs) {
    for (const char character : run.Text) {
      if (character == '\n') {
        plain += LineEnd;
      } else {
        plain += character;
      }
    }
  }
}

/// A line without the control characters that a document can't hold.
std::string Cleaned(std::string_view line) {
  std::string text;
  for (const char character : line) {
    const auto code = static_cast<unsigned char>(character);
    if (code >= 32 || character == '\t') text += character;
  }
  return text;
}

std::string_view TakeLine(std::string_view& text) noexcept {
  const auto end = text.find_first_of(LineEnd);
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(line.size());
  if (text.substr(0, 2) == LineEnd) text.remove_prefix(1);
  return line;
}

}  // namespace

void Append(Paragraph& paragraph, std::string_view text, const CharacterForm& form) {
  if (text.empty()) return;
  if (paragraph.Runs.empty() || paragraph.Runs.back().Form != form) paragraph.Runs.push_back({{}, form});
  paragraph.Runs.back().Text += text;
}

bool IsRtf(std::string_view bytes) noexcept { return bytes.substr(0, 5) == "{\\rtf"; }

std::string PlainText(const RichText& page) {
  std::string plain;
  for (const Paragraph& paragraph : page.Paragraphs) {
    if (&paragraph != &page.Paragraphs.front()) plain += LineEnd;
    AppendPlainText(plain, paragraph);
  }
  return plain;
}

RichText FromPlainText(std::string_view utf8) {
  RichText page;
  for (;;) {
    const std::string line = Cleaned(TakeLine(utf8));
    Paragraph& last = page.Paragraphs.back();
    if (page.Paragraphs.size() == MostParagraphs && !last.Runs.empty()) Append(last, "\n", {});
    Append(last, line, {});
    if (utf8.empty()) return page;
    utf8.remove_prefix(1);
    if (page.Paragraphs.size() < MostParagraphs) page.Paragraphs.emplace_back();
  }
}

}  // namespace zerimo
