#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Files of the disk, by the disk's own paths.
namespace zerimo {

/// All bytes of a regular file, or nothing if it can't be read.
std::optional<std::string> BytesOf(const std::filesystem::path& file);

/// The only way to save. When it returns, the file is complete and on the disk. When it fails (file access), the former
/// file is as it was, or the new one is complete but perhaps not yet safe from a loss of power. A new file is written
/// beside its place and then renamed; it keeps the owner and the mode of the one that it replaces. If `file` is a link,
/// the file that it leads to is written. Folders, devices and pipes are refused.
void WriteBeside(const std::filesystem::path& file, std::string_view bytes);

/// Removes from a folder what an interrupted save has left there. Never fails.
void RemoveLeftovers(const std::filesystem::path& folder);

/// Whether files can be created in a folder: one is created and removed again.
bool CanWriteInto(const std::filesystem::path& folder);

/// From now on a write beyond the user's limit of a file's size fails, and so can be reported; without this the
/// operating system ends the program.
void LetLargeWritesFail() noexcept;

}  // namespace zerimo
