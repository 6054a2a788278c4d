#include "files/disk_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <system_error>
#include <utility>

#include "base/failure.h"

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zerimo {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view TemporaryBeginning = ".zerimo-";
constexpr std::string_view TemporaryEnding = ".tmp";
constexpr std::size_t TemporaryDigits = 16;

void Require(bool isSo) {
  if (!isSo) throw Failure(FailureKind::FileAccess);
}

/// A random name, so that no other file of the folder has it.
fs::path NewNameIn(const fs::path& folder) {
  static constexpr std::array<char, 17> digits = {"0123456789abcdef"};
  std::random_device random;
  std::string name(TemporaryBeginning);
  for (std::size_t i = 0; i < TemporaryDigits; ++i) name += digits[random() % 16];
  return folder / name.append(TemporaryEnding);
}

bool IsTemporaryName(const std::string& name) noexcept {
  return name.size() == TemporaryBeginning.size() + TemporaryDigits + TemporaryEnding.size() &&
         name.starts_with(TemporaryBeginning) && name.ends_with(TemporaryEnding);
}

/// The file that a chain of links leads to, whether it exists or not.
fs::path WithoutLinks(fs::path file) {
  constexpr int mostLinks = 40;
  std::error_code error;
  for (int i = 0; i < mostLinks && fs::is_symlink(fs::symlink_status(file, error)); ++i) {
    file = file.parent_path() / fs::read_symlink(file, error);
  }
  return file;
}

#if defined(__unix__) || defined(__APPLE__)

/// An open file or folder. Every member may fail (file access).
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) { Require(number >= 0); }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  /// As far as this user and this kind of disk allow it.
  void TakeOwnerAndMode(const struct stat& former) {
    if (::fchown(number_, former.st_uid, former.st_gid) != 0) {
      Require(errno == EPERM && (::fchown(number_, static_cast<uid_t>(-1), former.st_gid) == 0 || errno == EPERM));
    }
    Require(::fchmod(number_, former.st_mode & 0777U) == 0 || errno == EPERM);
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = ::write(number_, bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      Require(count > 0);
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  /// Waits until it is on the disk; some kinds of disk can't tell.
  void Sync() { Require(::fsync(number_) == 0 || errno == EINVAL); }

  /// Some kinds of disk report only here that they are full.
  void Close() { Require(::close(std::exchange(number_, -1)) == 0); }

 private:
  int number_;
};

/// A place that a regular file can take: one with a regular file or nothing. Fails (file access) if it holds anything
/// else.
class PlaceOfFile {
 public:
  explicit PlaceOfFile(const fs::path& file) : isTaken_(::stat(file.c_str(), &former_) == 0) {
    Require(isTaken_ ? S_ISREG(former_.st_mode) && ::access(file.c_str(), W_OK) == 0 : errno == ENOENT);
  }

  void WriteFor(const fs::path& newFile, std::string_view bytes) const {
    const mode_t mode = isTaken_ ? former_.st_mode & 0777U : 0666U;
    Descriptor descriptor(::open(newFile.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (isTaken_) descriptor.TakeOwnerAndMode(former_);
    descriptor.Write(bytes);
    descriptor.Sync();
    descriptor.Close();
  }

 private:
  struct stat former_ {};
  bool isTaken_;
};

void Rename(const fs::path& from, const fs::path& to) { Require(std::rename(from.c_str(), to.c_str()) == 0); }

/// Waits until the names in a folder are on the disk.
void SyncFolder(const fs::path& folder) {
  const char* const name = folder.empty() ? "." : folder.c_str();
  const int number = ::open(name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  // Some folders may be written but not opened for reading.
  if (number < 0 && errno == EACCES) return;
  Descriptor descriptor(number);
  descriptor.Sync();
  descriptor.Close();
}

#else

class PlaceOfFile {
 public:
  explicit PlaceOfFile(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    Require(!fs::exists(status) || fs::is_regular_file(status));
  }

  static void WriteFor(const fs::path& newFile, std::string_view bytes) {
    std::ofstream stream(newFile, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    Require(!stream.fail());
  }
};

void Rename(const fs::path& from, const fs::path& to) { fs::rename(from, to); }

void SyncFolder(const fs::path&) {}

#endif

}  // namespace

std::optional<std::string> BytesOf(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return std::nullopt;
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(stream), {});
  if (!stream.is_open() || stream.bad()) return std::nullopt;
  return bytes;
}

void WriteBeside(const fs::path& file, std::string_view bytes) {
  const fs::path target = WithoutLinks(file);
  const fs::path folder = target.parent_path();
  const fs::path beside = NewNameIn(folder);
  std::error_code error;
  try {
    PlaceOfFile(target).WriteFor(beside, bytes);
    Rename(beside, target);
    SyncFolder(folder);
  } catch (const std::exception&) {
    fs::remove(beside, error);
    throw Failure(FailureKind::FileAccess);
  }
}

void RemoveLeftovers(const fs::path& folder) {
  constexpr std::chrono::minutes longestSave(10);
  std::error_code error;
  for (fs::directory_iterator walk(folder, error), end; !error && walk != end; walk.increment(error)) {
    std::error_code unknown;
    if (!IsTemporaryName(walk->path().filename().string()) || !walk->is_regular_file(unknown)) continue;
    const fs::file_time_type written = walk->last_write_time(unknown);
    if (!unknown && fs::file_time_type::clock::now() - written > longestSave) fs::remove(walk->path(), unknown);
  }
}

void LetLargeWritesFail() noexcept {
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

bool CanWriteInto(const fs::path& folder) {
  const fs::path trial = NewNameIn(folder);
  const bool isMade = std::ofstream(trial, std::ios::binary).is_open();
  std::error_code error;
  if (isMade) fs::remove(trial, error);
  return isMade;
}

}  // namespace zerimo
