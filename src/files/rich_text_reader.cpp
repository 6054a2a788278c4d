#include "files/rich_text_reader.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "files/unicode_text.h"

namespace zerimo {

RichText RtfReader::Read() {
  for (RtfToken token = scanner_.Next(); token.Is != RtfToken::Kind::End; token = scanner_.Next()) {
    const bool beginsGroup = token.Is == RtfToken::Kind::GroupStart;
    const bool marksGroup = isFirstInGroup_ && token.Is == RtfToken::Kind::Symbol && token.Byte == '*';
    isIgnorable_ = isIgnorable_ && token.Is == RtfToken::Kind::Word;
    Act(token);
    isFirstInGroup_ = beginsGroup || marksGroup;
    isIgnorable_ = marksGroup;
  }
  while (!outer_.empty()) EndGroup();
  CloseHalf();
  // What follows the last paragraph end is no paragraph if it is empty.
  if (page_.Paragraphs.size() > 1 && page_.Paragraphs.back().Runs.empty()) page_.Paragraphs.pop_back();
  return std::move(page_);
}

void RtfReader::Act(const RtfToken& token) {
  switch (token.Is) {
    case RtfToken::Kind::GroupStart:
      return StartGroup();
    case RtfToken::Kind::GroupEnd:
      return EndGroup();
    case RtfToken::Kind::Word:
      return ActOnWord(token);
    case RtfToken::Kind::Symbol:
      return ActOnSymbol(token.Byte);
    case RtfToken::Kind::Character:
      return ActOnCharacter(token.Byte);
    case RtfToken::Kind::Text:
      return ActOnText(token.Name);
    case RtfToken::Kind::Binary:
      IsSubstitute();
      return;
    case RtfToken::Kind::End:
      return;
  }
}

void RtfReader::StartGroup() {
  substitutesLeft_ = 0;
  if (outer_.size() == rtf_limits::DeepestNesting) {
    ++tooDeep_;
  } else {
    outer_.push_back(now_);
  }
}

void RtfReader::EndGroup() {
  substitutesLeft_ = 0;
  if (tooDeep_ > 0) {
    --tooDeep_;
    return;
  }
  // An end without a beginning is ignored.
  if (outer_.empty()) return;
  const bool endsMark = now_.Where == RtfDestination::ListMark && outer_.back().Where != RtfDestination::ListMark;
  now_ = std::move(outer_.back());
  outer_.pop_back();
  formIsKnown_ = false;
  if (endsMark) EndListMark(std::exchange(listMark_, {}));
}

void RtfReader::ActOnWord(const RtfToken& word) {
  const auto meanings = MeaningsIn(now_.Where);
  const auto found =
      std::lower_bound(meanings.begin(), meanings.end(), word.Name,
                       [](const WordMeaning& meaning, std::string_view name) { return meaning.Word < name; });
  const bool isKnown = found != meanings.end() && found->Word == word.Name;
  if (isIgnorable_ && !(isKnown && found->Do == &RtfReader::EnterDestination)) now_.Where = RtfDestination::Nothing;
  if (!isKnown || now_.Where == RtfDestination::Nothing) {
    substitutesLeft_ = 0;
    return;
  }
  // A dash or quotation mark may be the substitute of a Unicode character; other words end the substitutes.
  const bool isCharacter = found->Do == &RtfReader::Special && found->Value > 126;
  if (isCharacter && IsSubstitute()) return;
  substitutesLeft_ = 0;
  (this->*found->Do)(word, found->Value);
}

void RtfReader::ActOnSymbol(unsigned char symbol) {
  switch (symbol) {
    case '\r':
    case '\n':
      substitutesLeft_ = 0;
      return EndParagraph({}, 0);
    case '~':
      if (!IsSubstitute()) AddCharacter(0xA0);
      return;
    case '_':
      if (!IsSubstitute()) AddCharacter(0x2011);
      return;
    case '-':
      if (!IsSubstitute()) AddCharacter(0xAD);
      return;
    case '\t':
    case ' ':
    case '\\':
    case '{':
    case '}':
      if (!IsSubstitute()) AddCharacter(symbol);
      return;
    default:
      return;
  }
}

void RtfReader::ActOnCharacter(unsigned char byte) {
  if (!IsSubstitute()) AddCharacter(CharacterOf(CodePageOfNow(), byte));
}

void RtfReader::ActOnText(std::string_view text) {
  const auto skipped = std::min(static_cast<std::size_t>(substitutesLeft_), text.size());
  substitutesLeft_ -= static_cast<int>(skipped);
  text.remove_prefix(skipped);
  if (now_.Where == RtfDestination::FontTable || now_.Where == RtfDestination::ColourTable) return ActOnTableText(text);
  AddText(text);
}

bool RtfReader::IsSubstitute() noexcept {
  if (substitutesLeft_ == 0) return false;
  --substitutesLeft_;
  return true;
}

void RtfReader::AddCharacter(char32_t character) {
  if (character < 32 && character != '\t' && character != '\n') return;
  std::string utf8;
  AppendUtf8(utf8, character);
  AddText(utf8);
}

void RtfReader::AddText(std::string_view utf8) {
  if (utf8.empty()) return;
  CloseHalf();
  if (now_.Where == RtfDestination::Page) AddToPage(utf8);
  if (now_.Where == RtfDestination::ListMark) listMark_ += utf8;
  if (now_.Where == RtfDestination::FontTable) AddToFontTable(utf8);
}

void RtfReader::AddToPage(std::string_view utf8) {
  Paragraph& paragraph = page_.Paragraphs.back();
  if (paragraph.Form != now_.Form) paragraph.Form = now_.Form;
  const std::size_t runsBefore = paragraph.Runs.size();
  if (runs_ >= MostRuns && runsBefore > 0) {
    paragraph.Runs.back().Text += std::string(std::exchange(breaksOwed_, 0), '\n').append(utf8);
    return;
  }
  for (; breaksOwed_ > 0; --breaksOwed_) Append(paragraph, "\n", FormOfNow());
  Append(paragraph, utf8, FormOfNow());
  runs_ += paragraph.Runs.size() - runsBefore;
}

void RtfReader::AddToFontTable(std::string_view utf8) {
  RtfFont* const font = FontInTable();
  if (utf8 == "\t" || utf8 == "\n") return;
  if (font != nullptr && font->Name.size() < rtf_limits::LongestFontName) font->Name += utf8;
}

/// The text of a table: each semicolon ends an entry.
void RtfReader::ActOnTableText(std::string_view text) {
  for (const char character : text) {
    const bool ends = character == ';';
    if (now_.Where == RtfDestination::FontTable) {
      if (ends) {
        fontInTable_ = -1;
      } else {
        AddText({&character, 1});
      }
    } else if (ends && colours_.size() < rtf_limits::MostTableEntries) {
      colours_.push_back(std::exchange(colourInTable_, std::nullopt));
    }
  }
}

/// A mark of one character that is not a letter or digit is a bullet; any other stays as text.
void RtfReader::EndListMark(std::string_view mark) {
  std::string_view sign = mark;
  while (!sign.empty() && (sign.back() == '\t' || sign.back() == ' ')) sign.remove_suffix(1);
  while (!sign.empty() && (sign.front() == '\t' || sign.front() == ' ')) sign.remove_prefix(1);
  std::size_t offset = 0;
  const char32_t first = sign.empty() ? U'0' : NextCharacter(sign, offset);
  const bool isWordLike =
      (first >= '0' && first <= '9') || (first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z');
  if (!isWordLike && offset == sign.size()) {
    now_.Form.Bullet = true;
  } else {
    AddText(mark);
  }
}

/// Ends a first half that no second half followed.
void RtfReader::CloseHalf() {
  if (std::exchange(half_, 0) != 0) AddCharacter(ReplacementCharacter);
}

const CharacterForm& RtfReader::FormOfNow() {
  if (!formIsKnown_) {
    form_ = now_.Characters;
    const auto font = fonts_.find(now_.Font == -1 ? defaultFont_ : now_.Font);
    form_.FontName = font == fonts_.end() ? std::string() : std::string(Trimmed(font->second.Name));
    form_.Color = ColourOf(now_.Color);
    form_.Background = ColourOf(now_.Background);
    formIsKnown_ = true;
  }
  return form_;
}

int RtfReader::CodePageOfNow() const {
  const bool inTable = now_.Where == RtfDestination::FontTable;
  const auto font = fonts_.find(inTable ? fontInTable_ : now_.Font == -1 ? defaultFont_ : now_.Font);
  return font == fonts_.end() || font->second.CodePage == 0 ? codePage_ : font->second.CodePage;
}

std::optional<Colour> RtfReader::ColourOf(int number) const noexcept {
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < colours_.size() ? colours_[index] : std::nullopt;
}

void RtfReader::EndParagraph(Number, int) {
  if (now_.Where != RtfDestination::Page) return;
  CloseHalf();
  if (breaksOwed_ == 0) page_.Paragraphs.back().Form = now_.Form;
  if (page_.Paragraphs.size() < MostParagraphs) {
    page_.Paragraphs.emplace_back();
  } else {
    ++breaksOwed_;
  }
}

void RtfReader::TakeUnit(char32_t unit) {
  const bool isFirstHalf = unit >= 0xD800 && unit < 0xDC00;
  const bool isSecondHalf = unit >= 0xDC00 && unit < 0xE000;
  if (isFirstHalf) {
    CloseHalf();
    half_ = unit;
  } else if (isSecondHalf && half_ != 0) {
    AddCharacter(0x10000 + ((std::exchange(half_, 0) - 0xD800) << 10) + (unit - 0xDC00));
  } else {
    AddCharacter(unit);
  }
}

RichText ReadRtf(std::string_view rtf) { return RtfReader(rtf).Read(); }

}  // namespace zerimo
