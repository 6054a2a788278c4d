#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace zerimo {

/// A folder for one test, removed at the end.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    Path = std::filesystem::temp_directory_path() /
           ("zerimo-test-" + std::to_string(random()) + "-" + std::to_string(random()));
    std::filesystem::create_directories(Path);
  }
  ~TempFolder() {
    std::error_code error;
    std::filesystem::remove_all(Path, error);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  /// Writes a file, and the folders that lead to it.
  void Write(const std::string& name, std::string_view bytes) const {
    std::filesystem::create_directories((Path / name).parent_path());
    std::ofstream(Path / name, std::ios::binary) << bytes;
  }

  std::string Read(const std::string& name) const {
    std::ifstream stream(Path / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  bool Has(const std::string& name) const { return std::filesystem::exists(Path / name); }

  void MakeFolder(const std::string& name) const { std::filesystem::create_directories(Path / name); }

  /// Number of entries in a folder, hidden ones too.
  std::ptrdiff_t Count(const std::string& name = ".") const {
    return std::distance(std::filesystem::directory_iterator(Path / name), {});
  }

  std::filesystem::path Path;
};

}  // namespace zerimo
