#pragma once

#include <QByteArray>

namespace zerimo {

/// Whether the content of a picture file is there to its end: the decoders show some truncated pictures as far as they
/// go. Of icons, whose decoder notices it, the answer is always yes.
bool IsWholePicture(const QByteArray& content, const QByteArray& format);

}  // namespace zerimo
