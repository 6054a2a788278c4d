#pragma once

#include <QByteArray>

namespace zerimo {

/// Whether the content of a picture file is complete: the decoders accept some truncated pictures and show what there
/// is. Icons always count as complete, since their decoder notices.
bool IsWholePicture(const QByteArray& content, const QByteArray& format);

}  // namespace zerimo
