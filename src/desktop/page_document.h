#pragma once

class QTextDocument;

#include "files/rich_text.h"

namespace zerimo {

/// Replaces the contents of a document of the toolkit with a page.
void FillDocument(QTextDocument& document, const RichText& page);

/// The contents of a document as a page, in tidy form. What a page can't hold (pictures) is left out.
RichText ReadDocument(const QTextDocument& document);

}  // namespace zerimo
