#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>

namespace zerimo {

/// What the system may reach of the computer's disk: all of it, or a single folder for a program that nobody has
/// read yet.
class Disk {
 public:
  /// All of it. Relative paths start at `folder`; the empty path means the current folder of the process.
  explicit Disk(std::filesystem::path folder = {}) : folder_(std::move(folder)) {}

  /// Whatever a program says, its paths must be relative and stay below `folder`. What is not found there is read from
  /// `shelf`, which is never written. Neither folder needs to exist yet.
  static Disk Confined(const std::filesystem::path& folder, const std::filesystem::path& shelf);

  /// A confined disk that holds this many files or bytes takes no more; the last file may go beyond the bytes.
  static constexpr int MostFiles = 200;
  static constexpr std::uintmax_t MostBytes = std::uintmax_t{64} << 20;

  const std::filesystem::path& Folder() const noexcept { return folder_; }
  /// Nothing unless the disk is confined.
  const std::optional<std::filesystem::path>& Shelf() const noexcept { return shelf_; }

  /// Whether a path may be looked for, judged by its text alone.
  bool MayName(const std::filesystem::path& path) const;
  /// Whether a file, after following links, is where it may be read.
  bool MayRead(const std::filesystem::path& file) const;
  /// Whether a file is where it may be written and not a link, and there is room for it.
  bool MayWrite(const std::filesystem::path& file) const;

 private:
  bool HasRoom() const;

  std::filesystem::path folder_;
  std::optional<std::filesystem::path> shelf_;
};

}  // namespace zerimo
