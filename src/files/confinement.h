#pragma once

#include <cstdint>
#include <filesystem>

namespace zerimo {

/// While it lives, the system's paths stay where they can do no harm, whatever a program says: a path must be relative
/// and stay below the folder that is current now. What is not found there is read from a shelf, which is never
/// written. Like the current folder it belongs to the process, and there is at most one.
class Confinement {
 public:
  explicit Confinement(const std::filesystem::path& shelf);
  ~Confinement();
  Confinement(const Confinement&) = delete;
  Confinement& operator=(const Confinement&) = delete;

  /// The one that lives, or null.
  static const Confinement* Current();

  /// Nothing is written where there are more files or bytes; a single file may go beyond.
  static constexpr int MostFiles = 200;
  static constexpr std::uintmax_t MostBytes = std::uintmax_t{64} << 20;

  /// Whether the path, as it is written, stays below the current folder.
  static bool StaysBelow(const std::filesystem::path& path);

  /// Whether a file of the disk, its links followed, lies below the confining folder or the shelf.
  bool MayRead(const std::filesystem::path& file) const;
  /// Whether it lies below the confining folder and is no link, and there is still room.
  bool MayWrite(const std::filesystem::path& file) const;

  const std::filesystem::path& Shelf() const { return shelfFolder_; }

 private:
  bool HasRoom() const;

  std::filesystem::path folder_;
  std::filesystem::path shelfFolder_;
};

}  // namespace zerimo
