#pragma once

#include <istream>
#include <string>
#include <string_view>
#include <vector>

/// The plain texts that the help pages are made from.
namespace zerimo::help {

/// The kinds of lines of a page, with the marks at the beginning of the line in the source.
enum class LineKind {
  Text,     // no mark: a paragraph
  Heading,  // "* "
  Input,    // "+ ": name, colon, meaning
  Point,    // "- "
  Typed,    // "? ": a line for a row
  Edited,   // "| ": a line for the editor
  Claim,    // "> ": the result of the example above it
  Hint,     // "! "
  Related,  // "~ ": words with pages of their own
};

struct PageLine {
  LineKind Kind;
  /// UTF-8, without the mark.
  std::string Text;

  bool operator==(const PageLine&) const = default;
};

struct Page {
  /// The word that it explains, which is the name of its file.
  std::string Name;
  std::vector<PageLine> Lines;
};

/// A line of the source, not empty and no page's first one.
PageLine ReadPageLine(std::string_view line);

/// Adds the pages of a source: each begins with "= " and its name. Blank lines divide examples and are skipped. Fails
/// (std::runtime_error) at text before the first page.
void ReadPages(std::istream& source, std::vector<Page>& pages);

/// The mark of a kind, with its blank; empty for `Text`.
std::string_view MarkOf(LineKind kind);

}  // namespace zerimo::help
