#include "files/confinement.h"

#include <algorithm>
#include <system_error>

namespace zerimo {

namespace {

namespace fs = std::filesystem;

const Confinement* current = nullptr;

bool LiesBelow(const fs::path& file, const fs::path& folder) {
  std::error_code error;
  const fs::path real = fs::weakly_canonical(fs::absolute(file, error), error);
  return !error && std::mismatch(folder.begin(), folder.end(), real.begin(), real.end()).first == folder.end();
}

}  // namespace

Confinement::Confinement(const fs::path& shelf)
    : folder_(fs::canonical(fs::current_path())), shelfFolder_(fs::canonical(shelf)) {
  current = this;
}

Confinement::~Confinement() { current = nullptr; }

const Confinement* Confinement::Current() { return current; }

bool Confinement::StaysBelow(const fs::path& path) {
  const fs::path normal = path.lexically_normal();
  return !path.has_root_path() && (normal.empty() || *normal.begin() != "..");
}

bool Confinement::MayRead(const fs::path& file) const {
  return LiesBelow(file, folder_) || LiesBelow(file, shelfFolder_);
}

bool Confinement::MayWrite(const fs::path& file) const {
  // A link whose target is not there would be written through.
  std::error_code error;
  return !fs::is_symlink(file, error) && LiesBelow(file, folder_) && HasRoom();
}

bool Confinement::HasRoom() const {
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
