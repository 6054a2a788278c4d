#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "fuzz.h"

namespace {

namespace fs = std::filesystem;

int tried = 0;

void TryFile(const fs::path& file) {
  // Should the program end here, the input is the last that was named.
  std::cout << file.filename().string() << std::endl;
  std::ifstream stream(file, std::ios::binary);
  const std::string input(std::istreambuf_iterator<char>(stream), {});
  zerimo::fuzz::Try(input);
  ++tried;
}

}  // namespace

/// Usage: TARGET FOLDER...: tries all files of the folders, with any compiler. A folder may be missing; no input at all
/// is a failure.
int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (!fs::is_directory(argv[i])) continue;
    for (const fs::directory_entry& entry : fs::directory_iterator(argv[i])) {
      if (entry.is_regular_file()) TryFile(entry.path());
    }
  }
  return tried > 0 ? 0 : 1;
}
