#include "files/disk.h"

#include <algorithm>
#include <system_error>

namespace zerimo {

namespace {

namespace fs = std::filesystem;

/// Absolute and without links; empty if that can't be found out.
fs::path RealPath(const fs::path& path) {
  std::error_code error;
  return fs::weakly_canonical(fs::absolute(path, error), error);
}

bool LiesBelow(const fs::path& file, const fs::path& folder) {
  const fs::path real = RealPath(file);
  return !folder.empty() && std::mismatch(folder.begin(), folder.end(), real.begin(), real.end()).first == folder.end();
}

}  // namespace

Disk Disk::Confined(const fs::path& folder, const fs::path& shelf) {
  Disk disk(RealPath(folder));
  disk.shelf_ = RealPath(shelf);
  return disk;
}

bool Disk::MayName(const fs::path& path) const {
  if (!shelf_) return true;
  const fs::path normal = path.lexically_normal();
  return !path.has_root_path() && (normal.empty() || *normal.begin() != "..");
}

bool Disk::MayRead(const fs::path& file) const {
  return !shelf_ || LiesBelow(file, folder_) || LiesBelow(file, *shelf_);
}

bool Disk::MayWrite(const fs::path& file) const {
  if (!shelf_) return true;
  // Even a link with no target is refused: writing would follow it.
  std::error_code error;
  return !fs::is_symlink(file, error) && LiesBelow(file, folder_) && HasRoom();
}

bool Disk::HasRoom() const {
  int files = 0;
  std::uintmax_t bytes = 0;
  std::error_code error;
  for (fs::recursive_directory_iterator walk(folder_, error); !error && walk != fs::recursive_directory_iterator();
       walk.increment(error)) {
    std::error_code unknown;
    const std::uintmax_t size = walk->file_size(unknown);
    ++files;
    if (!unknown) bytes += size;
  }
  return !error && files < MostFiles && bytes < MostBytes;
}

}  // namespace zerimo
