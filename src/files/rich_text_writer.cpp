#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "files/rich_text.h"
#include "files/unicode_text.h"

namespace zerimo {

namespace {

/// Numbers distinct values from 1, in the order of their first use.
template <typename Value>
class Table {
 public:
  std::size_t NumberOf(const Value& value) {
    const auto found = std::find(values_.begin(), values_.end(), value);
    if (found != values_.end()) return static_cast<std::size_t>(found - values_.begin()) + 1;
    values_.push_back(value);
    return values_.size();
  }
  const std::vector<Value>& Values() const noexcept { return values_; }

 private:
  std::vector<Value> values_;
};

class RtfWriter {
 public:
  std::string Write(const RichText& page);

 private:
  void Word(const char* name) { body_ += name; }
  void Word(const char* name, long long number) { body_ += name + std::to_string(number); }
  void WordUnless(const char* name, int number, int usual);
  void WriteParagraph(const Paragraph& paragraph);
  void WriteForm(const ParagraphForm& form);
  void WriteForm(const CharacterForm& form);
  std::string Head() const;

  std::string body_;
  Table<std::string> fonts_;
  Table<Colour> colours_;
};

/// \uN with the question mark for readers that know no Unicode; N is a signed 16-bit number.
void AppendUnicode(std::string& rtf, char32_t character) {
  const auto unit = [&rtf](char32_t code) {
    rtf += "\\u" + std::to_string(static_cast<std::int16_t>(static_cast<std::uint16_t>(code))) + "?";
  };
  if (character < 0x10000) return unit(character);
  unit(0xD800 + ((character - 0x10000) >> 10));
  unit(0xDC00 + ((character - 0x10000) & 0x3FF));
}

void AppendCharacter(std::string& rtf, char32_t character) {
  if (character == '\t') {
    rtf += "\\tab ";
  } else if (character == '\n') {
    rtf += "\\line ";
  } else if (character == '\\' || character == '{' || character == '}') {
    rtf += '\\';
    rtf += static_cast<char>(character);
  } else if (character > 126) {
    AppendUnicode(rtf, character);
  } else if (character >= 32) {
    rtf += static_cast<char>(character);
  }
}

void AppendText(std::string& rtf, std::string_view utf8) {
  for (std::size_t offset = 0; offset < utf8.size();) AppendCharacter(rtf, NextCharacter(utf8, offset));
}

/// Escapes semicolons: a plain one would end the name.
void AppendFontName(std::string& rtf, std::string_view utf8) {
  for (std::size_t offset = 0; offset < utf8.size();) {
    const char32_t character = NextCharacter(utf8, offset);
    if (character == ';') {
      rtf += "\\'3b";
    } else {
      AppendCharacter(rtf, character);
    }
  }
}

void RtfWriter::WordUnless(const char* name, int number, int usual) {
  if (number != usual) Word(name, number);
}

void RtfWriter::WriteForm(const ParagraphForm& form) {
  static constexpr std::array<const char*, 4> alignments = {"", "\\qc", "\\qr", "\\qj"};
  Word("\\pard");
  Word(alignments[static_cast<std::size_t>(form.Align)]);
  WordUnless("\\fi", form.FirstIndent, 0);
  WordUnless("\\li", form.LeftIndent, 0);
  WordUnless("\\ri", form.RightIndent, 0);
  WordUnless("\\sb", form.SpaceBefore, 0);
  WordUnless("\\sa", form.SpaceAfter, 0);
  for (const int tab : form.Tabs) Word("\\tx", tab);
  if (form.Bullet) Word(R"({\pntext\'B7\tab}{\*\pn\pnlvlblt\pnindent0{\pntxtb\'B7}})");
}

void RtfWriter::WriteForm(const CharacterForm& form) {
  Word("\\plain");
  if (!form.FontName.empty()) Word("\\f", static_cast<long long>(fonts_.NumberOf(form.FontName)));
  Word("\\fs", form.HalfPoints);
  if (form.Bold) Word("\\b");
  if (form.Italic) Word("\\i");
  if (form.Underline) Word("\\ul");
  if (form.Strike) Word("\\strike");
  if (form.Color) Word("\\cf", static_cast<long long>(colours_.NumberOf(*form.Color)));
  if (form.Background) Word("\\highlight", static_cast<long long>(colours_.NumberOf(*form.Background)));
  body_ += ' ';
}

void RtfWriter::WriteParagraph(const Paragraph& paragraph) {
  WriteForm(paragraph.Form);
  for (const TextRun& run : paragraph.Runs) {
    WriteForm(run.Form);
    AppendText(body_, run.Text);
  }
  Word("\\par\r\n");
}

std::string RtfWriter::Head() const {
  // No \deff, and no font 0: text without a font name keeps none.
  std::string head = R"({\rtf1\ansi\ansicpg1252\uc1{\fonttbl)";
  std::size_t number = 0;
  for (const std::string& name : fonts_.Values()) {
    head += "{\\f" + std::to_string(++number) + "\\fnil ";
    AppendFontName(head, name);
    head += ";}";
  }
  head += "}{\\colortbl;";
  for (const Colour colour : colours_.Values()) {
    head += "\\red" + std::to_string(colour & 255) + "\\green" + std::to_string(colour >> 8 & 255) + "\\blue" +
            std::to_string(colour >> 16 & 255) + ";";
  }
  return head + "}\r\n";
}

std::string RtfWriter::Write(const RichText& page) {
  for (const Paragraph& paragraph : page.Paragraphs) WriteParagraph(paragraph);
  return Head() + body_ + "}";
}

}  // namespace

std::string WriteRtf(const RichText& page) { return RtfWriter().Write(page); }

}  // namespace zerimo
