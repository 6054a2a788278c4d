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

/// How many bytes are collected before they are written; a larger piece is written as it comes.
constexpr std::size_t LargestPiece = std::size_t{64} << 10;

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

}  // namespace

#if defined(__unix__) || defined(__APPLE__)

/// An open file or folder. Every member may fail (file access).
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) { Require(number >= 0); }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;

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

namespace {

/// The new file for a place with a regular file or nothing. Fails (file access) if the place holds anything else.
Descriptor OpenFor(const fs::path& place, const fs::path& newFile) {
  struct stat former {};
  const bool isTaken = ::stat(place.c_str(), &former) == 0;
  Require(isTaken ? S_ISREG(former.st_mode) && ::access(place.c_str(), W_OK) == 0 : errno == ENOENT);
  const mode_t mode = isTaken ? former.st_mode & 0777U : 0666U;
  Descriptor file(::open(newFile.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (isTaken) file.TakeOwnerAndMode(former);
  return file;
}

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

/// An open file. Every member may fail (file access).
class Descriptor {
 public:
  explicit Descriptor(const fs::path& file) : stream_(file, std::ios::binary | std::ios::trunc) {
    Require(stream_.is_open());
  }

  void Write(std::string_view bytes) {
    stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    Require(stream_.good());
  }

  void Sync() { Require(stream_.flush().good()); }

  void Close() {
    stream_.close();
    Require(!stream_.fail());
  }

 private:
  std::ofstream stream_;
};

namespace {

Descriptor OpenFor(const fs::path& place, const fs::path& newFile) {
  std::error_code error;
  const fs::file_status status = fs::status(place, error);
  Require(!fs::exists(status) || fs::is_regular_file(status));
  return Descriptor(newFile);
}

void Rename(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);
  Require(!error);
}

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

/// The file beside the target until it is saved; removed with this object if it was not.
class FileToSave::Place {
 public:
  explicit Place(const fs::path& file)
      : target_(WithoutLinks(file)),
        beside_{NewNameIn(target_.parent_path())},
        newFile_(OpenFor(target_, beside_.Name)) {}

  void Write(std::string_view bytes) { newFile_.Write(bytes); }

  void Take() {
    newFile_.Sync();
    newFile_.Close();
    Rename(beside_.Name, target_);
    beside_.Name.clear();
    SyncFolder(target_.parent_path());
  }

 private:
  struct Beside {
    ~Beside() {
      std::error_code error;
      if (!Name.empty()) fs::remove(Name, error);
    }
    fs::path Name;
  };

  fs::path target_;
  Beside beside_;
  Descriptor newFile_;
};

FileToSave::FileToSave(const fs::path& file) : place_(std::make_unique<Place>(file)) {
  // Later there may be no memory for it.
  waiting_.reserve(LargestPiece);
}

FileToSave::~FileToSave() = default;

std::streamsize FileToSave::xsputn(const char* bytes, std::streamsize count) {
  const std::string_view piece(bytes, static_cast<std::size_t>(count));
  if (waiting_.size() + piece.size() > LargestPiece) sync();
  if (piece.size() <= LargestPiece) {
    waiting_ += piece;
  } else {
    hasFailed_ = !SkipOnFailure([&] { place_->Write(piece); }) || hasFailed_;
  }
  return hasFailed_ ? 0 : count;
}

FileToSave::int_type FileToSave::overflow(int_type byte) {
  const char character = traits_type::to_char_type(byte);
  return xsputn(&character, 1) == 1 ? traits_type::not_eof(byte) : traits_type::eof();
}

int FileToSave::sync() {
  hasFailed_ = !SkipOnFailure([&] { place_->Write(waiting_); }) || hasFailed_;
  waiting_.clear();
  return hasFailed_ ? -1 : 0;
}

void FileToSave::Save() {
  Require(sync() == 0);
  place_->Take();
}

void WriteBeside(const fs::path& file, std::string_view bytes) {
  FileToSave saved(file);
  saved.sputn(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  saved.Save();
}

void RemoveLeftovers(const fs::path& folder) {
  constexpr std::chrono::minutes longestSave(10);
  std::error_code error;
  for (fs::directory_iterator walk(folder.empty() ? "." : folder, error), end; !error && walk != end;
       walk.increment(error)) {
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
