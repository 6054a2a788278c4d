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
  /// All of it. Relative paths begin at `folder`; the empty path stands for the current folder of the process.
  explicit Disk(std::filesystem::path folder = {}) : folder_(std::move(folder)) {}

  /// Whatever a program says, its paths must be relative and stay below `folder`. What is not found there is read from
  /// `shelf`, which is never written. Neither folder needs to exist yet.
  static Disk Confined(const std::filesystem::path& folder, const std::filesystem::path& shelf);

  /// A confined disk takes no more when it has this many files or bytes; the last file may exceed the bytes.
  static constexpr int MostFiles = 200;
  static constexpr std::uintmax_t MostBytes = std::uintmax_t{64} << 20;

  const std::filesystem::path& Folder() const noexcept { return folder_; }
  /// Nothing unless the disk is confined.
  const std::optional<std::filesystem::path>& Shelf() const noexcept { return shelf_; }

  /// Whether a path may be looked for, going by its text alone.
  bool MayName(const std::filesystem::path& path) const;
  /// Whether a file, after following its links, lies where it may be read.
  bool MayRead(const std::filesystem::path& file) const;
  /// Whether a file lies where it may be written, is not a link, and there is room.
  bool MayWrite(const std::filesystem::path& file) const;

 private:
  bool HasRoom() const;

  std::filesystem::path folder_;
  std::optional<std::filesystem::path> shelf_;
};

}  // namespace zerimo
