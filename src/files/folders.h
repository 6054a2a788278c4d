#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "files/disk.h"

namespace zerimo {

/// How the system's paths are found on the disk. In a system path a backslash or a slash separates folders, and a drive
/// letter is not a folder. What the disk does not allow is not found and can't be written.
class Folders {
 public:
  explicit Folders(std::string appFolder, Disk disk = Disk())
      : AppFolder(std::move(appFolder)), disk_(std::move(disk)) {}

  /// The folder of the running program, without a separator at its end.
  std::string AppFolder;

  /// Whether a system path names a folder.
  static bool HasFolder(std::string_view systemPath) noexcept {
    return systemPath.find('\\') != std::string_view::npos;
  }

  /// A path of the disk as the system names it: with backslashes, and a question mark for each character that
  /// single-byte text can't hold.
  static std::string ToSystem(const std::filesystem::path& path);

  /// The file to read: looked up exactly, then ignoring case, folder by folder. If there is none, the path as given.
  /// Fails (file not found) only where the disk refuses it.
  std::filesystem::path ToRead(const std::string& systemPath) const;

  /// The file to write: an existing one of that name in another case, otherwise the name as given. Fails (file access)
  /// only where the disk refuses it, or where the file might keep a program in the same folder from starting.
  std::filesystem::path ToWrite(const std::string& systemPath) const;

  /// All bytes of a file. Fails (file not found, file access); a file beyond `LargestFile` fails too.
  std::string ReadFile(const std::string& systemPath) const;
  static constexpr std::size_t LargestFile = std::size_t{64} << 20;

  /// Writes a file as `WriteBeside` does. Fails (file access).
  void WriteFile(const std::string& systemPath, const std::string& bytes) const;

  /// The names of the files in a folder, sorted ignoring case; folders and hidden files are left out. Fails (file not
  /// found, file access).
  std::vector<std::string> FilesIn(const std::string& systemPath) const;

 private:
  Disk disk_;
};

/// What the start finds around it. The folders need not exist.
struct Surroundings {
  /// The folder of the running program.
  std::filesystem::path ProgramFolder;
  bool CanWriteIntoProgramFolder = false;
  /// The folder with the samples and help pages of an installed program.
  std::filesystem::path ShareFolder;
  /// The user's documents.
  std::filesystem::path DocumentsFolder;
};

/// The folder that the system works in.
struct StartFolder {
  /// To be `AppFolder`.
  std::filesystem::path Folder;
  /// Whether relative paths start there too, and not in the current folder.
  bool IsCurrentFolder = false;
  /// The user's own folder if it could not be created, filled or written; otherwise empty.
  std::filesystem::path Unusable;
};

/// The program's folder, if it can be written and is not just the folder of all installed programs. Otherwise the
/// folder `Zerimo` in the user's documents, which is created and brought up to date here (see `DeliverFiles`); if that
/// can't be written and has no help pages either, the folder that it should have been filled from. What an interrupted
/// save has left there is removed.
StartFolder PrepareStartFolder(const Surroundings& surroundings);

/// The system's name of a folder, to be `AppFolder`. If that name leads elsewhere, because the path has characters that
/// the system can't hold, and the disk's relative paths start at the folder, the name is ".".
std::string AppFolderName(const std::filesystem::path& folder, const Disk& disk = Disk());

}  // namespace zerimo
