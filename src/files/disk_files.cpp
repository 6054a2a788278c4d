#include "files/disk_files.h"

#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include "base/failure.h"

namespace zerimo {

namespace {

namespace fs = std::filesystem;

/// A name that no other file of the folder has.
fs::path NewNameIn(const fs::path& folder) {
  static constexpr std::array<char, 17> digits = {"0123456789abcdef"};
  std::random_device random;
  std::string name = ".zerimo-";
  for (int i = 0; i < 16; ++i) name += digits[random() % 16];
  return folder / (name + ".tmp");
}

}  // namespace

std::optional<std::string> BytesOf(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return std::nullopt;
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(stream), {});
  if (!stream.is_open() || stream.bad()) return std::nullopt;
  return bytes;
}

void WriteThrough(const fs::path& file, const std::string& bytes) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  stream.close();
  if (!stream) throw Failure(FailureKind::FileAccess);
}

void WriteBeside(const fs::path& file, const std::string& bytes) {
  const fs::path beside = NewNameIn(file.parent_path());
  std::error_code error;
  try {
    WriteThrough(beside, bytes);
    if (fs::exists(file, error)) fs::permissions(beside, fs::status(file).permissions());
    fs::rename(beside, file);
  } catch (const std::exception&) {
    fs::remove(beside, error);
    throw Failure(FailureKind::FileAccess);
  }
}

bool CanWriteInto(const fs::path& folder) {
  const fs::path trial = NewNameIn(folder);
  const bool isMade = std::ofstream(trial, std::ios::binary).is_open();
  std::error_code error;
  if (isMade) fs::remove(trial, error);
  return isMade;
}

}  // namespace zerimo
