#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control_kinds.h"

namespace zerimo {

/// How characters look.
struct CharacterForm {
  /// UTF-8; empty means the font of the view.
  std::string FontName;
  /// The size in half points, from 1.
  int HalfPoints = 24;
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool Strike = false;
  /// Nothing means the colour of the view.
  std::optional<Colour> Color;
  std::optional<Colour> Background;

  bool operator==(const CharacterForm&) const = default;
};

/// Characters of one form: UTF-8 with tabs ("\t") and line breaks inside the paragraph ("\n"), and no other control
/// characters below 32.
struct TextRun {
  std::string Text;
  CharacterForm Form;

  bool operator==(const TextRun&) const = default;
};

enum class Alignment { Left, Centre, Right, Justified };

/// How a paragraph is laid out. Lengths are twentieths of a point.
struct ParagraphForm {
  Alignment Align = Alignment::Left;
  int LeftIndent = 0;
  int RightIndent = 0;
  /// Of the first line, from the left indent; a negative one is a hanging indent.
  int FirstIndent = 0;
  int SpaceBefore = 0;
  int SpaceAfter = 0;
  /// There is a bullet before the paragraph; it is not part of the text.
  bool Bullet = false;
  /// The places of the tab stops from the left edge, at most `MostTabs`.
  std::vector<int> Tabs;
  static constexpr std::size_t MostTabs = 32;

  bool operator==(const ParagraphForm&) const = default;
};

struct Paragraph {
  ParagraphForm Form;
  std::vector<TextRun> Runs;

  bool operator==(const Paragraph&) const = default;
};

/// A document: paragraphs of runs. It is tidy if there is at least one paragraph, no run is empty, and no two
/// neighbouring runs have the same form; what is read is always tidy.
struct RichText {
  std::vector<Paragraph> Paragraphs{1};

  bool operator==(const RichText&) const = default;
};

/// Adds text to the end of a paragraph, to its last run if that has the same form.
void Append(Paragraph& paragraph, std::string_view text, const CharacterForm& form);

/// Whether a page is rich text (RTF): it begins with "{\rtf".
bool IsRtf(std::string_view bytes) noexcept;

/// Reads RTF. What is unknown is skipped, and its text is kept. Never fails: of text that is not RTF it gives what can
/// be read. Beyond `MostParagraphs` and `MostRuns` the text goes on in the last one.
RichText ReadRtf(std::string_view rtf);
inline constexpr std::size_t MostParagraphs = 100000;
inline constexpr std::size_t MostRuns = 200000;

/// Writes RTF that reads back as the same document, if that is tidy.
std::string WriteRtf(const RichText& page);

/// The text alone, in UTF-8; paragraphs and lines are separated by carriage return and line feed.
std::string PlainText(const RichText& page);

/// A document without formatting. Each line of the UTF-8 text, ended in any usual way, is a paragraph.
RichText FromPlainText(std::string_view utf8);

}  // namespace zerimo
