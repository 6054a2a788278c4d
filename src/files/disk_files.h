#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>

/// Files of the disk, by the disk's own paths.
namespace zerimo {

/// All bytes of a regular file, or nothing if it can't be read.
std::optional<std::string> BytesOf(const std::filesystem::path& file);

/// The only way to save: a stream of bytes for a file. They are written beside its place, and `Save` puts them there;
/// it keeps the owner and the mode of the former file. Without `Save` the former file stays as it is. If `file` is a
/// link, the file that it leads to is written. Folders, devices and pipes are refused.
class FileToSave final : public std::streambuf {
 public:
  /// Fails (file access).
  explicit FileToSave(const std::filesystem::path& file);
  ~FileToSave() override;
  FileToSave(const FileToSave&) = delete;
  FileToSave& operator=(const FileToSave&) = delete;

  /// When it returns, the file is complete and on the disk. When it fails (file access), as it does after any failure
  /// to write, the former file is as it was, or the new one is complete but perhaps not yet safe from a loss of power.
  void Save();

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  int_type overflow(int_type byte) override;
  int sync() override;

 private:
  class Place;

  std::unique_ptr<Place> place_;
  std::string waiting_;
  bool hasFailed_ = false;
};

/// Saves all at once. Fails (file access) like `FileToSave`.
void WriteBeside(const std::filesystem::path& file, std::string_view bytes);

/// Removes from a folder what an interrupted save has left there; the empty path is the current one. Never fails.
void RemoveLeftovers(const std::filesystem::path& folder);

/// Whether files can be created in a folder: one is created and removed again.
bool CanWriteInto(const std::filesystem::path& folder);

/// From now on a write beyond the user's limit of a file's size fails, and so can be reported; without this the
/// operating system ends the program.
void LetLargeWritesFail() noexcept;

}  // namespace zerimo
