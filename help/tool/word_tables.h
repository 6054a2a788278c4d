#pragma once

#include <istream>
#include <string>
#include <vector>

#include "page_source.h"

/// The language reference: its words come from the table of primitives and from the help pages, the rest is written by
/// hand in a frame.
namespace zerimo::help {

/// The pages of one help source.
struct Topic {
  /// The name of the source, without folder and ending.
  std::string Name;
  std::vector<Page> Pages;
};

/// Reads a help source; fails (std::runtime_error) if it can't be read.
Topic ReadTopic(const std::string& file);

/// The frame with each line "{{TOPIC}}" replaced by the table of that topic's words, the line "{{index}}" by all words
/// in the order of the alphabet, each with a link to its part, and the line "{{untyped}}" by the names that only the
/// system itself uses. Fails (std::runtime_error) if a topic is left out, if a word has no page or a page no word, and
/// if a page names another number of inputs than the table.
std::string LanguageReference(std::istream& frame, const std::vector<Topic>& topics);

}  // namespace zerimo::help
