#include "files/start_folder.h"

#include <system_error>

#include "files/delivered_files.h"
#include "files/disk_files.h"
#include "files/folders.h"

namespace zerimo {

namespace {

namespace fs = std::filesystem;

constexpr const char* UserFolderName = "Zerimo";

bool HasHelpPages(const fs::path& folder) {
  std::error_code error;
  return fs::is_directory(HelpFolderIn(folder), error);
}

StartFolder PrepareUserFolder(const fs::path& source, const fs::path& documents) {
  const fs::path folder = documents / UserFolderName;
  const Delivery delivery = DeliverFiles(source, folder);
  if (delivery.Failed == 0 && CanWriteInto(folder)) return {folder, true, {}};
  return {HasHelpPages(folder) ? folder : source, true, folder};
}

}  // namespace

StartFolder PrepareStartFolder(const Surroundings& surroundings) {
  const bool isInOneFolder = HasHelpPages(surroundings.ProgramFolder) || !HasHelpPages(surroundings.ShareFolder);
  const fs::path& source = isInOneFolder ? surroundings.ProgramFolder : surroundings.ShareFolder;
  StartFolder start = isInOneFolder && surroundings.CanWriteIntoProgramFolder
                          ? StartFolder{surroundings.ProgramFolder, false, {}}
                          : PrepareUserFolder(source, surroundings.DocumentsFolder);
  RemoveLeftovers(start.Folder);
  return start;
}

std::string AppFolderName(const fs::path& folder, const Disk& disk) {
  std::string name = Folders::ToSystem(folder);
  std::error_code error;
  if (fs::equivalent(Folders(name, disk).ToRead(name), folder, error)) return name;
  return fs::equivalent(disk.Folder() / ".", folder, error) ? "." : name;
}

}  // namespace zerimo
