#pragma once

#include <filesystem>
#include <optional>
#include <string>

/// Files of the disk by the disk's own paths.
namespace zerimo {

/// All bytes of a regular file, or nothing if it can't be read.
std::optional<std::string> BytesOf(const std::filesystem::path& file);

/// Writes a file, whatever it is, from its beginning. Fails (file access).
void WriteThrough(const std::filesystem::path& file, const std::string& bytes);

/// Writes a file beside its place and renames it, so that a failure leaves the former one. Fails (file access).
void WriteBeside(const std::filesystem::path& file, const std::string& bytes);

/// Whether files can be made in a folder: one is made and taken away again.
bool CanWriteInto(const std::filesystem::path& folder);

}  // namespace zerimo
