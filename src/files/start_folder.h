#pragma once

#include <filesystem>
#include <string>

#include "files/disk.h"

namespace zerimo {

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
