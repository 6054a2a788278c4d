#pragma once

#include <QString>
#include <filesystem>

namespace zerimo::classroom {

/// The name of a file as text. Bytes that are not UTF-8 become U+FFFD.
QString NameOf(const std::filesystem::path& path);

/// A text on one line that is harmless in a page or on a terminal: invisible characters, such as controls and direction
/// marks, appear as codes such as [U+202E].
QString Readable(const QString& text);

/// The name of a file for people.
inline QString ReadableName(const std::filesystem::path& path) { return Readable(NameOf(path.filename())); }

/// What was said, as lines: each kind of line end becomes a newline, and other control characters become U+FFFD.
QString ReadableLines(QString text);

}  // namespace zerimo::classroom
