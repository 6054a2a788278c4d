#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zerimo {

/// How the system's paths are found on the disk. In a system path a backslash divides folders (a slash does too), and
/// a drive letter is no folder. Relative paths begin at the current folder of the process. While a `Confinement` lives,
/// what it does not allow is not found and can't be written.
class Folders {
 public:
  explicit Folders(std::string appFolder) : AppFolder(std::move(appFolder)) {}

  /// The folder of the running program, without a divider behind it.
  std::string AppFolder;

  /// Whether a system path names a folder.
  static bool HasFolder(std::string_view systemPath) { return systemPath.find('\\') != std::string_view::npos; }

  /// A path of the disk as the system names it: with backslashes, and a question mark for each character that
  /// single-byte text does not have.
  static std::string ToSystem(const std::filesystem::path& path);

  /// The file to read: looked up exactly, then without regard to case, folder by folder. If there is none, the path
  /// as it stands. Fails (file not found) only where a confinement refuses it.
  static std::filesystem::path ToRead(const std::string& systemPath);

  /// The file to write: an existing one of that name in another case, else the name as it stands. Fails (file
  /// access) only where a confinement refuses it.
  static std::filesystem::path ToWrite(const std::string& systemPath);

  /// All bytes of a file. Fails (file not found, file access); a file beyond `LargestFile` fails too.
  static std::string ReadFile(const std::string& systemPath);
  static constexpr std::size_t LargestFile = std::size_t{64} << 20;

  /// Writes a file beside its place and renames it, so that a failure leaves the former one. Fails (file access).
  static void WriteFile(const std::string& systemPath, const std::string& bytes);

  /// The names of the files in a folder, sorted without regard to case; no folders and no hidden files. Fails (file
  /// not found, file access).
  static std::vector<std::string> FilesIn(const std::string& systemPath);
};

}  // namespace zerimo
