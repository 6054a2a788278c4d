#pragma once

#include <string>

#include "files/rich_text.h"

namespace zerimo::web {

/// A page as markup that holds no script and no style: paragraphs with `data-align`, `data-indent` (pixels) and
/// `data-bullet`, and runs with `data-size` (points), `data-colour`, `data-ground` and `data-font` for the page to set.
/// Characters above 127 are written as numbers, so that it is single-byte text.
std::string MarkupOf(const RichText& page);

}  // namespace zerimo::web
