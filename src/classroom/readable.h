#pragma once

#include <QString>
#include <filesystem>

namespace zerimo::classroom {

/// The name of a file as text. Bytes that are no UTF-8 stand as U+FFFD.
QString NameOf(const std::filesystem::path& path);

/// A text on one line that does nothing to a page or a terminal: characters that can't be seen, such as controls and
/// marks of direction, stand as [U+202E].
QString Readable(const QString& text);

/// The name of a file for people.
inline QString ReadableName(const std::filesystem::path& path) { return Readable(NameOf(path.filename())); }

/// What was said, as lines: each kind of line end is a newline, and other control characters stand as U+FFFD.
QString ReadableLines(QString text);

}  // namespace zerimo::classroom
