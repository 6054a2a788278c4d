#pragma once

class QTextDocument;

#include "files/rich_text.h"

namespace zerimo {

/// Puts a page into the toolkit's document, in the place of what it holds.
void FillDocument(QTextDocument& document, const RichText& page);

/// The page that a document holds, tidy. What a page can't hold (pictures) is left out.
RichText ReadDocument(const QTextDocument& document);

}  // namespace zerimo
