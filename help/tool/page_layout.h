#pragma once

#include "files/rich_text.h"
#include "page_source.h"

namespace zerimo::help {

/// The font of the lines of an example; no other text has it.
inline constexpr const char* ExampleFont = "Courier New";

/// How a page looks: its name in large letters, then its lines, each kind in its own form, with a small heading in
/// front of the inputs, the examples, the hints and the related words.
RichText LayOut(const Page& page);

}  // namespace zerimo::help
