#include <algorithm>
#include <iterator>

#include "files/rich_text_reader.h"

namespace zerimo {

namespace {

constexpr int UsualHalfPoints = 24;

constexpr int Into(RtfDestination destination) noexcept { return static_cast<int>(destination); }

bool IsOn(const RtfToken& word) noexcept { return !word.HasNumber || word.Number != 0; }

int LengthOf(const RtfToken& word) {
  return std::clamp(word.Number, -rtf_limits::GreatestLength, rtf_limits::GreatestLength);
}

}  // namespace

/// The control words with a meaning, by the destination that they are in; each table is sorted by word.
struct RtfReader::WordTables {
  using R = RtfReader;
  static constexpr WordMeaning Page[] = {
      {"ansi", &R::CodePage, 1252},
      {"ansicpg", &R::CodePage},
      {"b", &R::Bold},
      {"bullet", &R::Special, 0x2022},
      {"cb", &R::Background},
      {"cell", &R::Special, '\t'},
      {"cf", &R::Color},
      {"chcbpat", &R::Background},
      {"colortbl", &R::EnterDestination, Into(RtfDestination::ColourTable)},
      {"deff", &R::DefaultFont},
      {"emdash", &R::Special, 0x2014},
      {"emspace", &R::Special, 0x2003},
      {"endash", &R::Special, 0x2013},
      {"enspace", &R::Special, 0x2002},
      {"f", &R::FontNumber},
      {"fi", &R::FirstIndent},
      {"fonttbl", &R::EnterDestination, Into(RtfDestination::FontTable)},
      {"footer", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"footerf", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"footerl", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"footerr", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"fs", &R::FontSize},
      {"header", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"headerf", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"headerl", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"headerr", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"highlight", &R::Background},
      {"i", &R::Italic},
      {"info", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"lbr", &R::Special, '\n'},
      {"ldblquote", &R::Special, 0x201C},
      {"li", &R::LeftIndent},
      {"line", &R::Special, '\n'},
      {"listtext", &R::EnterDestination, Into(RtfDestination::ListMark)},
      {"lquote", &R::Special, 0x2018},
      {"ltrmark", &R::Special, 0x200E},
      {"mac", &R::CodePage, 10000},
      {"nestcell", &R::Special, '\t'},
      {"nestrow", &R::EndParagraph},
      {"objdata", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"page", &R::Special, '\n'},
      {"par", &R::EndParagraph},
      {"pard", &R::PlainParagraph},
      {"pc", &R::CodePage, 437},
      {"pca", &R::CodePage, 850},
      {"pict", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"plain", &R::PlainForm},
      {"pn", &R::EnterDestination, Into(RtfDestination::ListForm)},
      {"pntext", &R::EnterDestination, Into(RtfDestination::ListMark)},
      {"private", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"qc", &R::Align, static_cast<int>(Alignment::Centre)},
      {"qj", &R::Align, static_cast<int>(Alignment::Justified)},
      {"ql", &R::Align, static_cast<int>(Alignment::Left)},
      {"qmspace", &R::Special, 0x2005},
      {"qr", &R::Align, static_cast<int>(Alignment::Right)},
      {"rdblquote", &R::Special, 0x201D},
      {"ri", &R::RightIndent},
      {"row", &R::EndParagraph},
      {"rquote", &R::Special, 0x2019},
      {"rtlmark", &R::Special, 0x200F},
      {"sa", &R::SpaceAfter},
      {"sb", &R::SpaceBefore},
      {"sect", &R::EndParagraph},
      {"strike", &R::Strike},
      {"striked", &R::Strike},
      {"stylesheet", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"tab", &R::Special, '\t'},
      {"tc", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"template", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"tx", &R::Tab},
      {"u", &R::Unicode},
      {"uc", &R::Substitutes},
      {"ul", &R::Underline, 1},
      {"uld", &R::Underline, 1},
      {"uldash", &R::Underline, 1},
      {"uldashd", &R::Underline, 1},
      {"uldashdd", &R::Underline, 1},
      {"uldb", &R::Underline, 1},
      {"ulhwave", &R::Underline, 1},
      {"ulldash", &R::Underline, 1},
      {"ulnone", &R::Underline, 0},
      {"ulth", &R::Underline, 1},
      {"ulthd", &R::Underline, 1},
      {"ulthdash", &R::Underline, 1},
      {"ululdbwave", &R::Underline, 1},
      {"ulw", &R::Underline, 1},
      {"ulwave", &R::Underline, 1},
      {"xe", &R::EnterDestination, Into(RtfDestination::Nothing)},
      {"zwj", &R::Special, 0x200D},
      {"zwnj", &R::Special, 0x200C},
  };
  static constexpr WordMeaning FontTable[] = {
      {"cpg", &R::FontCodePage}, {"f", &R::DefineFont},   {"fcharset", &R::FontCharset},
      {"u", &R::Unicode},        {"uc", &R::Substitutes},
  };
  static constexpr WordMeaning ColourTable[] = {
      {"blue", &R::ColourPart, 16},
      {"green", &R::ColourPart, 8},
      {"red", &R::ColourPart, 0},
  };
  static constexpr WordMeaning ListForm[] = {{"pnlvlblt", &R::BulletList}};
};

std::span<const RtfReader::WordMeaning> RtfReader::MeaningsIn(RtfDestination where) {
  constexpr auto before = [](const WordMeaning& a, const WordMeaning& b) { return a.Word < b.Word; };
  static_assert(std::is_sorted(std::begin(WordTables::Page), std::end(WordTables::Page), before));
  switch (where) {
    case RtfDestination::Page:
    case RtfDestination::ListMark:
      return WordTables::Page;
    case RtfDestination::FontTable:
      return WordTables::FontTable;
    case RtfDestination::ColourTable:
      return WordTables::ColourTable;
    case RtfDestination::ListForm:
      return WordTables::ListForm;
    case RtfDestination::Nothing:
      break;
  }
  return {};
}

void RtfReader::Special(Number, int value) { AddCharacter(static_cast<char32_t>(value)); }

void RtfReader::Bold(Number n, int) noexcept {
  now_.Characters.Bold = IsOn(n);
  formIsKnown_ = false;
}

void RtfReader::Italic(Number n, int) noexcept {
  now_.Characters.Italic = IsOn(n);
  formIsKnown_ = false;
}

void RtfReader::Strike(Number n, int) noexcept {
  now_.Characters.Strike = IsOn(n);
  formIsKnown_ = false;
}

void RtfReader::Underline(Number n, int value) noexcept {
  now_.Characters.Underline = value != 0 && IsOn(n);
  formIsKnown_ = false;
}

void RtfReader::FontNumber(Number n, int) noexcept {
  now_.Font = n.Number;
  formIsKnown_ = false;
}

void RtfReader::Color(Number n, int) noexcept {
  now_.Color = n.Number;
  formIsKnown_ = false;
}

void RtfReader::Background(Number n, int) noexcept {
  now_.Background = n.Number;
  formIsKnown_ = false;
}

void RtfReader::PlainParagraph(Number, int) noexcept { now_.Form = {}; }

void RtfReader::Align(Number, int value) noexcept { now_.Form.Align = static_cast<Alignment>(value); }

void RtfReader::LeftIndent(Number n, int) { now_.Form.LeftIndent = LengthOf(n); }

void RtfReader::RightIndent(Number n, int) { now_.Form.RightIndent = LengthOf(n); }

void RtfReader::FirstIndent(Number n, int) { now_.Form.FirstIndent = LengthOf(n); }

void RtfReader::SpaceBefore(Number n, int) { now_.Form.SpaceBefore = LengthOf(n); }

void RtfReader::SpaceAfter(Number n, int) { now_.Form.SpaceAfter = LengthOf(n); }

void RtfReader::CodePage(Number n, int value) noexcept { codePage_ = value != 0 ? value : n.Number; }

void RtfReader::DefaultFont(Number n, int) noexcept {
  defaultFont_ = n.Number;
  formIsKnown_ = false;
}

void RtfReader::Substitutes(Number n, int) { now_.Substitutes = std::clamp(n.Number, 0, 255); }

void RtfReader::FontCharset(Number n, int) {
  if (RtfFont* const font = FontInTable()) font->CodePage = CodePageOfCharset(n.Number);
}

void RtfReader::FontCodePage(Number n, int) {
  if (RtfFont* const font = FontInTable()) font->CodePage = n.Number;
}

void RtfReader::EnterDestination(Number, int value) noexcept {
  if (isFirstInGroup_) now_.Where = static_cast<RtfDestination>(value);
}

void RtfReader::FontSize(Number n, int) {
  now_.Characters.HalfPoints = n.Number > 0 ? std::min(n.Number, rtf_limits::LargestHalfPoints) : UsualHalfPoints;
  formIsKnown_ = false;
}

void RtfReader::PlainForm(Number, int) noexcept {
  const RtfGroup plain;
  now_.Font = plain.Font;
  now_.Color = plain.Color;
  now_.Background = plain.Background;
  now_.Characters = plain.Characters;
  formIsKnown_ = false;
}

void RtfReader::Tab(Number n, int) {
  if (now_.Form.Tabs.size() < ParagraphForm::MostTabs) now_.Form.Tabs.push_back(LengthOf(n));
}

void RtfReader::Unicode(Number n, int) {
  // Codes above 32767 are written as negative numbers.
  TakeUnit(static_cast<char32_t>(n.Number < 0 ? n.Number + 65536 : n.Number));
  substitutesLeft_ = now_.Substitutes;
}

void RtfReader::BulletList(Number, int) noexcept {
  // The list's form has a group of its own but applies to the paragraphs around it.
  if (!outer_.empty()) outer_.back().Form.Bullet = true;
}

void RtfReader::DefineFont(Number n, int) {
  fontInTable_ = n.Number;
  if (fonts_.size() < rtf_limits::MostTableEntries) fonts_[fontInTable_] = {};
}

void RtfReader::ColourPart(Number n, int value) {
  colourInTable_ = colourInTable_.value_or(0) | std::clamp(n.Number, 0, 255) << value;
}

RtfFont* RtfReader::FontInTable() {
  const auto font = fonts_.find(fontInTable_);
  return font == fonts_.end() ? nullptr : &font->second;
}

}  // namespace zerimo
