#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace zerimo::fuzz {

/// A folder for the files of this process, which goes with it; in memory where the machine has such a place.
class FolderOfItsOwn {
 public:
  FolderOfItsOwn() {
    std::error_code error;
    const std::filesystem::path memory("/dev/shm");
    const bool isThere = std::filesystem::is_directory(memory, error);
    std::random_device random;
    path_ = (isThere ? memory : std::filesystem::temp_directory_path()) / ("zerimo-fuzz-" + std::to_string(random()));
    std::filesystem::create_directory(path_);
  }
  ~FolderOfItsOwn() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  FolderOfItsOwn(const FolderOfItsOwn&) = delete;
  FolderOfItsOwn& operator=(const FolderOfItsOwn&) = delete;

  const std::filesystem::path& Path() const { return path_; }

  void Write(const char* name, std::string_view bytes) const { std::ofstream(path_ / name, std::ios::binary) << bytes; }

 private:
  std::filesystem::path path_;
};

}  // namespace zerimo::fuzz
