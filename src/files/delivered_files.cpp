#include "files/delivered_files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/text.h"
#include "files/disk_files.h"
#include "files/folders.h"

namespace zerimo {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view HelpFolderName = "ZMHELP";
constexpr std::string_view ListName = ".zerimo-files";
constexpr std::string_view ListHead =
    "# What Zerimo has put here, and as what. Without this list all that is missing comes again.\n";

constexpr std::size_t MarkLength = 16;

/// A checksum in 16 hexadecimal digits, to tell whether contents are the same; it protects nothing.
std::string MarkOf(std::string_view bytes) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  static constexpr std::array<char, 17> digits = {"0123456789abcdef"};
  std::string mark(MarkLength, '0');
  for (std::size_t i = MarkLength; i-- > 0; sum >>= 4) mark[i] = digits[sum & 15];
  return mark;
}

std::string Utf8Of(const fs::path& path) {
  const std::u8string utf8 = path.generic_u8string();
  return {utf8.begin(), utf8.end()};
}

bool IsSampleOrPicture(const fs::path& name) {
  static constexpr std::string_view endings[] = {".ZRM", ".JPG", ".BMP", ".GIF", ".ICO", ".CUR"};
  return std::ranges::find(endings, UpperCase(Folders::ToSystem(name.extension()))) != std::end(endings);
}

bool IsVisible(const fs::path& name) noexcept { return name.native().front() != '.'; }

/// The regular files of a folder, sorted; none if it can't be read.
std::vector<fs::path> FilesOf(const fs::path& folder) {
  std::vector<fs::path> names;
  std::error_code error;
  for (fs::directory_iterator walk(folder, error), end; !error && walk != end; walk.increment(error)) {
    std::error_code unknown;
    if (walk->is_regular_file(unknown)) names.push_back(walk->path().filename());
  }
  std::ranges::sort(names);
  return names;
}

/// The names in a folder, of whatever kind, in capitals.
std::set<std::string> NamesIn(const fs::path& folder) {
  std::set<std::string> names;
  std::error_code error;
  for (fs::directory_iterator walk(folder, error), end; !error && walk != end; walk.increment(error)) {
    names.insert(UpperCase(Folders::ToSystem(walk->path().filename())));
  }
  return names;
}

/// The list of what was delivered: marks by names.
class DeliveryList {
 public:
  explicit DeliveryList(const fs::path& folder) : file_(folder / ListName) {
    const std::string text = BytesOf(file_).value_or(std::string());
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = std::min(text.find('\n', begin), text.size());
      TakeLine(text.substr(begin, end - begin));
      begin = end + 1;
    }
  }

  /// The mark of what was delivered under a name, or the empty text.
  std::string MarkFor(const std::string& name) const {
    const auto found = marks_.find(name);
    return found == marks_.end() ? std::string() : found->second;
  }

  void Set(const std::string& name, const std::string& mark) {
    marks_[name] = mark;
    isChanged_ = true;
  }

  /// Fails (file access).
  void Save() const {
    if (!isChanged_) return;
    std::string text(ListHead);
    for (const auto& [name, mark] : marks_) text.append(mark).append(" ").append(name).append("\n");
    WriteBeside(file_, text);
  }

 private:
  void TakeLine(const std::string& line) {
    if (line.size() > MarkLength + 1 && line[MarkLength] == ' ')
      marks_[line.substr(MarkLength + 1)] = line.substr(0, MarkLength);
  }

  fs::path file_;
  std::map<std::string, std::string> marks_;
  bool isChanged_ = false;
};

/// One walk from the source to the target.
class DeliveryRound {
 public:
  DeliveryRound(fs::path from, const fs::path& to) : source_(std::move(from)), target_(to), list_(to) {}

  Delivery Run() {
    DeliverFolder({}, IsSampleOrPicture, false);
    DeliverFolder(HelpFolderName, IsVisible, true);
    Try([this] { list_.Save(); });
    return result_;
  }

 private:
  void DeliverFolder(const fs::path& folder, bool (*isDelivered)(const fs::path& name), bool comesAgain) {
    std::vector<fs::path> names = FilesOf(source_ / folder);
    std::erase_if(names, [&](const fs::path& name) { return !isDelivered(name); });
    if (names.empty()) return;
    if (!folder.empty() && !Try([&] { MakeFolder(target_ / folder); })) return;
    const std::set<std::string> there = NamesIn(target_ / folder);
    for (const fs::path& name : names) {
      DeliverFile(folder / name, there.contains(UpperCase(Folders::ToSystem(name))), comesAgain);
    }
  }

  void DeliverFile(const fs::path& name, bool isThere, bool comesAgain) {
    const std::optional<std::string> bytes = BytesOf(source_ / name);
    if (!bytes) return;
    const std::string listName = Utf8Of(name);
    const std::string former = list_.MarkFor(listName);
    const std::string mark = MarkOf(*bytes);
    if (isThere) {
      if (mark == former) return;
      const std::string present = MarkOfUnchanged(target_ / name);
      // This covers a delivery that was interrupted.
      if (present == mark) return list_.Set(listName, mark);
      if (former.empty() || present != former) return;
    } else if (!former.empty() && !comesAgain) {
      return;
    }
    if (!Try([&] { WriteBeside(target_ / name, *bytes); })) return;
    list_.Set(listName, mark);
    ++result_.Written;
  }

  /// The mark of a file that may have been delivered, or the empty text: a link is the user's own.
  static std::string MarkOfUnchanged(const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(fs::symlink_status(file, error))) return {};
    const std::optional<std::string> bytes = BytesOf(file);
    return bytes ? MarkOf(*bytes) : std::string();
  }

  static void MakeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error)) throw Failure(FailureKind::FileAccess);
  }

  template <typename Work>
  bool Try(Work work) {
    try {
      work();
      return true;
    } catch (const Failure&) {
      ++result_.Failed;
      return false;
    }
  }

  fs::path source_;
  fs::path target_;
  DeliveryList list_;
  Delivery result_;
};

}  // namespace

Delivery DeliverFiles(const fs::path& source, const fs::path& target) {
  std::error_code error;
  fs::create_directories(target, error);
  if (!fs::is_directory(target, error)) return {0, 1};
  return DeliveryRound(source, target).Run();
}

fs::path HelpFolderIn(const fs::path& folder) { return folder / HelpFolderName; }

}  // namespace zerimo
