#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "files/rich_text.h"
#include "files/rich_text_scanner.h"
#include "files/unicode_text.h"

namespace zerimo {

/// The most that the reader holds, whatever a page says.
namespace rtf_limits {
inline constexpr std::size_t DeepestNesting = 10000;
inline constexpr std::size_t MostTableEntries = 4096;
inline constexpr std::size_t LongestFontName = 96;
inline constexpr int GreatestLength = 100000;
inline constexpr int LargestHalfPoints = 6552;
}  // namespace rtf_limits

/// What the text of a group is for.
enum class RtfDestination { Page, ListMark, FontTable, ColourTable, ListForm, Nothing };

/// The state that a group restores at its end. Fonts and colours are kept by number: the tables later say what they
/// are.
struct RtfGroup {
  RtfDestination Where = RtfDestination::Page;
  /// -1 means the document's own.
  int Font = -1;
  int Color = 0;
  int Background = 0;
  CharacterForm Characters;
  ParagraphForm Form;
  /// How many characters after \uN are for readers that know no Unicode.
  int Substitutes = 1;
};

struct RtfFont {
  std::string Name;
  int CodePage = 0;
};

/// Reads a document token by token with a stack of its own, so that nesting costs no call depth.
class RtfReader {
 public:
  explicit RtfReader(std::string_view rtf) : scanner_(rtf) {}
  RichText Read();

 private:
  using Number = const RtfToken&;
  struct WordMeaning {
    std::string_view Word;
    void (RtfReader::*Do)(Number, int);
    int Value = 0;
  };
  struct WordTables;
  static std::span<const WordMeaning> MeaningsIn(RtfDestination where);

  void Act(const RtfToken& token);
  void StartGroup();
  void EndGroup();
  void ActOnWord(const RtfToken& word);
  void ActOnSymbol(unsigned char symbol);
  void ActOnCharacter(unsigned char byte);
  void ActOnText(std::string_view text);

  /// Steps over a piece that is a substitute after a Unicode character; returns whether it was one.
  bool IsSubstitute() noexcept;
  void AddCharacter(char32_t character);
  void AddText(std::string_view utf8);
  void AddToPage(std::string_view utf8);
  void AddToFontTable(std::string_view utf8);
  void ActOnTableText(std::string_view text);
  void EndListMark(std::string_view mark);
  void CloseHalf();
  void TakeUnit(char32_t unit);
  const CharacterForm& FormOfNow();
  int CodePageOfNow() const;
  std::optional<Colour> ColourOf(int number) const noexcept;

  // What control words do; `value` comes from the table of words.
  void Special(Number, int value);
  void EndParagraph(Number, int);
  void EnterDestination(Number, int value) noexcept;
  void Bold(Number n, int) noexcept;
  void Italic(Number n, int) noexcept;
  void Strike(Number n, int) noexcept;
  void Underline(Number n, int value) noexcept;
  void FontNumber(Number n, int) noexcept;
  void FontSize(Number n, int);
  void Color(Number n, int) noexcept;
  void Background(Number n, int) noexcept;
  void PlainForm(Number, int) noexcept;
  void PlainParagraph(Number, int) noexcept;
  void Align(Number, int value) noexcept;
  void LeftIndent(Number n, int);
  void RightIndent(Number n, int);
  void FirstIndent(Number n, int);
  void SpaceBefore(Number n, int);
  void SpaceAfter(Number n, int);
  void Tab(Number n, int);
  void CodePage(Number n, int value) noexcept;
  void DefaultFont(Number n, int) noexcept;
  void Unicode(Number n, int);
  void Substitutes(Number n, int);
  void BulletList(Number, int) noexcept;
  void DefineFont(Number n, int);
  void FontCharset(Number n, int);
  void FontCodePage(Number n, int);
  void ColourPart(Number n, int value);

  /// The font that is being defined, or nothing.
  RtfFont* FontInTable();

  RtfScanner scanner_;
  RichText page_;
  std::size_t runs_ = 0;
  /// Paragraph ends beyond `MostParagraphs`.
  std::size_t breaksOwed_ = 0;

  RtfGroup now_;
  std::vector<RtfGroup> outer_;
  std::size_t tooDeep_ = 0;
  /// The token before began a group, or was the \* at its beginning.
  bool isFirstInGroup_ = false;
  bool isIgnorable_ = false;

  int codePage_ = WesternCodePage;
  int defaultFont_ = 0;
  std::map<int, RtfFont> fonts_;
  int fontInTable_ = -1;
  std::vector<std::optional<Colour>> colours_;
  std::optional<Colour> colourInTable_;

  CharacterForm form_;
  bool formIsKnown_ = false;
  /// The first half of a character beyond 16 bits, or 0.
  char32_t half_ = 0;
  int substitutesLeft_ = 0;
  std::string listMark_;
};

}  // namespace zerimo
