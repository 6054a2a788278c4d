#pragma once

#include <string>
#include <vector>

#include "files/rich_text.h"

namespace zerimo::help {

/// One example of a page: what is written in the editor first, what is then typed on the rows, and what the page
/// claims about the result.
struct Example {
  std::vector<std::string> Edited;
  std::vector<std::string> Typed;
  std::vector<std::string> Claims;
};

/// The examples of a page as its reader sees them: paragraphs in the font of examples that begin with a mark.
std::vector<Example> ExamplesOf(const RichText& page);

/// The session that tries an example in a fresh system: the surface is traced, timers tick after it, and the state is
/// dumped at the end.
std::string SessionOf(const Example& example);

/// Lines for people, each indented on a line of its own.
std::string JoinedLines(const std::vector<std::string>& lines);

}  // namespace zerimo::help
