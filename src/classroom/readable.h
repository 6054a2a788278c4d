#pragma once

#include <QString>
#include <filesystem>
#include <string>

namespace zerimo::classroom {

/// All of a text in UTF-8: the toolkit alone would drop a byte order mark at its beginning.
QString WholeText(const std::string& utf8);

/// The name of a file as text. A byte that is not UTF-8 becomes U+FFFD and its hexadecimal number, so that no two names
/// are alike.
QString NameOf(const std::filesystem::path& path);

/// A text on one line that is harmless in a page or on a terminal: invisible characters, such as controls and direction
/// marks, appear as codes such as [U+202E].
QString Readable(const QString& text);

/// The name of a file for people.
inline QString ReadableName(const std::filesystem::path& path) { return Readable(NameOf(path.filename())); }

/// What was said, as lines: each kind of line end becomes a newline, and other control characters become U+FFFD.
QString ReadableLines(QString text);

}  // namespace zerimo::classroom
