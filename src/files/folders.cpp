#include "files/folders.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "base/failure.h"
#include "base/text.h"
#include "files/delivered_files.h"
#include "files/disk_files.h"
#include "files/unicode_text.h"

namespace zerimo {

namespace {

namespace fs = std::filesystem;

/// If the disk itself has drive letters, they are kept.
constexpr bool DriveLettersAreFolders = fs::path::preferred_separator == '\\';

[[noreturn]] void Fail(FailureKind kind) { throw Failure(kind); }

/// No disk has longer ones.
constexpr std::size_t LongestPath = 4096;

bool BeginsWithDriveLetter(std::string_view path) noexcept {
  if (path.size() < 2 || path[1] != ':') return false;
  const char letter = path[0];
  return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
}

/// The path exactly as given.
fs::path AsItStands(std::string_view systemPath) {
  if (!DriveLettersAreFolders && BeginsWithDriveLetter(systemPath)) systemPath.remove_prefix(2);
  std::string path = Utf8FromLatin1(systemPath);
  std::replace(path.begin(), path.end(), '\\', '/');
  return std::u8string(path.begin(), path.end());
}

/// The name of a file or folder, or a whole path, as the system writes it.
std::string SystemName(const fs::path& path) {
  const std::u8string utf8 = path.generic_u8string();
  return Latin1FromUtf8(std::string(utf8.begin(), utf8.end()));
}

/// The entries of a folder that have a name in another case, sorted.
std::vector<fs::path> InAnotherCase(const fs::path& folder, const fs::path& name) {
  const std::string wanted = UpperCase(SystemName(name));
  std::vector<fs::path> entries;
  std::error_code error;
  fs::directory_iterator walk(folder.empty() ? fs::path(".") : folder, error);
  for (; !error && walk != fs::directory_iterator(); walk.increment(error)) {
    const fs::path entry = walk->path().filename();
    if (entry != name && UpperCase(SystemName(entry)) == wanted) entries.push_back(entry);
  }
  std::sort(entries.begin(), entries.end());
  // Names with characters that the system can't hold may look alike: then none of them is chosen.
  if (entries.size() > 1 && wanted.find('?') != std::string::npos) entries.clear();
  return entries;
}

/// Looks the parts up below a folder. If a folder leads nowhere, the others are tried: a path in capitals must not get
/// stuck in a folder whose name differs only in case.
std::optional<fs::path> LookUp(const fs::path& folder, fs::path::iterator part, fs::path::iterator end) {
  if (part == end) return folder;
  const auto next = std::next(part);
  std::error_code error;
  if (part->empty()) return fs::is_directory(folder, error) ? LookUp(folder, next, end) : std::nullopt;
  if (fs::exists(folder / *part, error)) {
    if (auto found = LookUp(folder / *part, next, end)) return found;
  }
  for (const fs::path& entry : InAnotherCase(folder, *part)) {
    if (auto found = LookUp(folder / entry, next, end)) return found;
  }
  return std::nullopt;
}

/// Looks up a path relative to a folder; an absolute path starts at its root.
std::optional<fs::path> LookUp(const fs::path& folder, const fs::path& path) {
  std::error_code error;
  if (fs::exists(folder / path, error)) return folder / path;
  const fs::path relative = path.relative_path();
  return LookUp(path.has_root_path() ? path.root_path() : folder, relative.begin(), relative.end());
}

fs::path WhereToWrite(const fs::path& folder, const fs::path& path) {
  if (auto found = LookUp(folder, path)) return *found;
  const auto parent = LookUp(folder, path.parent_path());
  return parent ? *parent / path.filename() : folder / path;
}

/// Refuses empty names and those that the disk would cut short.
void RequireName(std::string_view systemPath, FailureKind kind) {
  if (systemPath.empty() || systemPath.find('\0') != std::string_view::npos) Fail(kind);
}

bool HasProgram(const fs::path& folder) {
  std::error_code error;
  return fs::is_regular_file(folder / "zerimo", error) || fs::is_regular_file(folder / "zerimo.exe", error);
}

bool HasProgramAbove(fs::path folder) {
  while (!HasProgram(folder)) {
    if (folder == folder.parent_path()) return false;
    folder = folder.parent_path();
  }
  return true;
}

/// Whether writing this file might keep a program from starting again: its own files, those that the toolkit looks for
/// beside a program, and the libraries in folders below it.
bool IsOfProgram(const fs::path& file) {
  static constexpr std::string_view names[] = {"ZERIMO",  "ZERIMO-BATCH", "ZERIMO.EXE", "ZERIMO-BATCH.EXE",
                                               "ZMHELP",  "QT.CONF",      "QT6.CONF",   "QTLOGGING.INI",
                                               "PLUGINS", "PLATFORMS",    "STYLES",     "IMAGEFORMATS"};
  const std::string name = UpperCase(SystemName(file.filename()));
  if (name.ends_with(".DLL") || name.ends_with(".SO") || Contains(name, ".SO."))
    return HasProgramAbove(file.parent_path());
  return std::ranges::find(names, name) != std::end(names) && HasProgram(file.parent_path());
}

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

std::string Folders::ToSystem(const fs::path& path) {
  std::string text = SystemName(path);
  std::replace(text.begin(), text.end(), '/', '\\');
  return text;
}

fs::path Folders::ToRead(const std::string& systemPath) const {
  fs::path path = AsItStands(systemPath);
  if (!disk_.MayName(path)) Fail(FailureKind::FileNotFound);
  // A drive letter alone names nothing, not even the folder where relative paths start.
  if (path.empty()) return path;
  // It would be looked up in vain, and that takes long.
  if (systemPath.size() > LongestPath) return disk_.Folder() / path;
  auto found = LookUp(disk_.Folder(), path);
  if (!found && disk_.Shelf()) found = LookUp(*disk_.Shelf(), path);
  if (found && !disk_.MayRead(*found)) Fail(FailureKind::FileNotFound);
  return found.value_or(disk_.Folder() / path);
}

fs::path Folders::ToWrite(const std::string& systemPath) const {
  const fs::path path = AsItStands(systemPath);
  if (!disk_.MayName(path)) Fail(FailureKind::FileAccess);
  fs::path file = WhereToWrite(disk_.Folder(), path);
  if (!disk_.MayWrite(file) || IsOfProgram(file)) Fail(FailureKind::FileAccess);
  return file;
}

std::string Folders::ReadFile(const std::string& systemPath) const {
  RequireName(systemPath, FailureKind::FileNotFound);
  const fs::path file = ToRead(systemPath);
  std::error_code error;
  if (!fs::exists(file, error)) Fail(FailureKind::FileNotFound);
  // A folder can't be read, and reading a pipe might wait for ever.
  if (!fs::is_regular_file(file, error)) Fail(FailureKind::FileAccess);
  std::ifstream stream(file, std::ios::binary);
  std::string bytes;
  std::array<char, 65536> piece;
  while (stream.read(piece.data(), piece.size()), stream.gcount() > 0) {
    bytes.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
    if (bytes.size() > LargestFile) Fail(FailureKind::FileAccess);
  }
  if (!stream.eof()) Fail(FailureKind::FileAccess);
  return bytes;
}

void Folders::WriteFile(const std::string& systemPath, const std::string& bytes) const {
  RequireName(systemPath, FailureKind::FileAccess);
  WriteBeside(ToWrite(systemPath), bytes);
}

std::vector<std::string> Folders::FilesIn(const std::string& systemPath) const {
  const fs::path folder = ToRead(systemPath);
  std::error_code error;
  if (!fs::is_directory(folder, error)) Fail(FailureKind::FileNotFound);
  std::vector<std::string> names;
  fs::directory_iterator walk(folder, error);
  for (; !error && walk != fs::directory_iterator(); walk.increment(error)) {
    std::error_code unknown;
    const std::string name = SystemName(walk->path().filename());
    if (walk->is_regular_file(unknown) && name.front() != '.') names.push_back(name);
  }
  if (error) Fail(FailureKind::FileAccess);
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    return std::make_pair(UpperCase(a), a) < std::make_pair(UpperCase(b), b);
  });
  return names;
}

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
