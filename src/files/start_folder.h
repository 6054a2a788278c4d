#pragma once

#include <filesystem>
#include <string>

#include "files/disk.h"

namespace zerimo {

/// What the start finds around it. Folders need not be there.
struct Surroundings {
  /// Where the running program lies.
  std::filesystem::path ProgramFolder;
  bool CanWriteIntoProgramFolder = false;
  /// Where the samples and help pages of an installed program lie.
  std::filesystem::path ShareFolder;
  /// The user's documents.
  std::filesystem::path DocumentsFolder;
};

/// The folder that the system works in.
struct StartFolder {
  /// To be `AppFolder`.
  std::filesystem::path Folder;
  /// Whether it is to be the current folder too.
  bool IsCurrentFolder = false;
  /// The user's own folder if it could not be made, filled or written; otherwise empty.
  std::filesystem::path Unusable;
};

/// The program's folder, if it can be written and is not merely that of all installed programs. Otherwise the folder
/// `Zerimo` in the user's documents, which is made and brought up to date here (see `DeliverFiles`); where that can't
/// be written and has no help pages either, the folder that it should have been filled from. What a save has left there
/// that was killed is removed.
StartFolder PrepareStartFolder(const Surroundings& around);

/// A folder as `AppFolder`: the system's name of it. If that leads elsewhere, because the path has characters that the
/// system does not have, and the folder is the one where the disk's relative paths begin, it is a full stop.
std::string AppFolderName(const std::filesystem::path& folder, const Disk& disk = Disk());

}  // namespace zerimo
