#include "page_layout.h"

#include <optional>
#include <set>
#include <string_view>

namespace zerimo::help {

namespace {

constexpr const char* textFont = "Arial";

constexpr Colour Rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }
constexpr Colour titleColour = Rgb(0, 0, 128);
constexpr Colour headingColour = Rgb(160, 60, 0);
constexpr Colour typedColour = Rgb(0, 0, 200);
constexpr Colour editedColour = Rgb(110, 0, 150);
constexpr Colour claimColour = Rgb(0, 100, 0);

/// Lengths are twentieths of a point.
constexpr int indent = 360;
constexpr int gap = 160;
constexpr int smallGap = 60;

CharacterForm Letters(int points, std::optional<Colour> colour = {}, bool bold = false) {
  CharacterForm form;
  form.FontName = textFont;
  form.HalfPoints = 2 * points;
  form.Bold = bold;
  form.Color = colour;
  return form;
}

CharacterForm ExampleLetters(Colour colour, bool bold) {
  CharacterForm form = Letters(14, colour, bold);
  form.FontName = ExampleFont;
  return form;
}

ParagraphForm Spaced(int before, int after, int left = 0) {
  ParagraphForm form;
  form.SpaceBefore = before;
  form.SpaceAfter = after;
  form.LeftIndent = left;
  return form;
}

/// A heading that comes before the first line of these kinds.
std::string_view HeadingOf(LineKind kind) {
  switch (kind) {
    case LineKind::Input:
      return "You give it";
    case LineKind::Typed:
    case LineKind::Edited:
      return "Try it";
    case LineKind::Hint:
      return "Good to know";
    case LineKind::Related:
      return "See also";
    default:
      return {};
  }
}

class PageLayout {
 public:
  RichText LayOut(const Page& page) {
    result.Paragraphs.clear();
    Add(page.Name, Spaced(0, gap), Letters(28, titleColour, true));
    // The general page has headings of its own.
    usesHeadings = page.Name != "HELP";
    for (const PageLine& line : page.Lines) AddLine(line);
    return result;
  }

 private:
  void AddLine(const PageLine& line) {
    AddHeadingOf(line.Kind);
    switch (line.Kind) {
      case LineKind::Text:
        return Add(line.Text, Spaced(previous ? gap : 0, smallGap), Letters(14));
      case LineKind::Heading:
        return Add(line.Text, Spaced(2 * gap, smallGap), Letters(16, headingColour, true));
      case LineKind::Input:
        return AddInput(line.Text);
      case LineKind::Point:
      case LineKind::Hint:
        return AddPoint(line.Text);
      case LineKind::Typed:
        return AddExample(line, typedColour, true);
      case LineKind::Edited:
        return AddExample(line, editedColour, true);
      case LineKind::Claim:
        return AddExample(line, claimColour, false);
      case LineKind::Related:
        return Add(line.Text, Spaced(0, smallGap, indent), Letters(14, titleColour, true));
    }
  }

  /// Each heading comes once on a page.
  void AddHeadingOf(LineKind kind) {
    const std::string_view heading = HeadingOf(kind);
    if (!usesHeadings || heading.empty() || !shownHeadings.insert(heading).second) return;
    AddLine({LineKind::Heading, std::string(heading)});
  }

  void AddInput(const std::string& text) {
    const std::size_t colon = text.find(':');
    ParagraphForm form = Spaced(0, smallGap, indent);
    form.Bullet = true;
    Paragraph& paragraph = result.Paragraphs.emplace_back(Paragraph{form, {}});
    if (colon != std::string::npos) Append(paragraph, text.substr(0, colon), Letters(14, {}, true));
    Append(paragraph, colon == std::string::npos ? text : text.substr(colon), Letters(14));
    previous = LineKind::Input;
  }

  void AddPoint(const std::string& text) {
    ParagraphForm form = Spaced(0, smallGap, indent);
    form.Bullet = true;
    Add(text, form, Letters(14));
  }

  /// The lines of an example keep their marks. A gap parts it from the one before.
  void AddExample(const PageLine& line, Colour colour, bool bold) {
    const bool begins = previous == LineKind::Claim && line.Kind != LineKind::Claim;
    Add(std::string(MarkOf(line.Kind)) + line.Text, Spaced(begins ? gap : 0, 0, indent), ExampleLetters(colour, bold));
    previous = line.Kind;
  }

  void Add(const std::string& text, const ParagraphForm& form, const CharacterForm& letters) {
    Paragraph& paragraph = result.Paragraphs.emplace_back(Paragraph{form, {}});
    Append(paragraph, text, letters);
    previous = LineKind::Text;
  }

  RichText result;
  bool usesHeadings = true;
  std::set<std::string_view> shownHeadings;
  std::optional<LineKind> previous;
};

}  // namespace

RichText LayOut(const Page& page) { return PageLayout().LayOut(page); }

}  // namespace zerimo::help
