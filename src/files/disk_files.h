#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// Files of the disk by the disk's own paths.
namespace zerimo {

/// All bytes of a regular file, or nothing if it can't be read.
std::optional<std::string> BytesOf(const std::filesystem::path& file);

/// The one way to save: when it returns, the file is whole and on the disk; when it fails (file access), the former
/// file is as it was, or the new one is whole though perhaps not yet safe from a loss of power. A new file is written
/// beside its place and then renamed; it keeps the owner and the mode of the one that it replaces. Where a link stands,
/// the file that it leads to is written. Folders, devices and pipes are refused.
void WriteBeside(const std::filesystem::path& file, std::string_view bytes);

/// Removes from a folder what a save has left there that was killed. Never fails.
void RemoveLeftovers(const std::filesystem::path& folder);

/// Whether files can be made in a folder: one is made and removed again.
bool CanWriteInto(const std::filesystem::path& folder);

}  // namespace zerimo
