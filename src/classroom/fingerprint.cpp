#include "classroom/fingerprint.h"

#include <QCryptographicHash>
#include <algorithm>
#include <array>
#include <set>

#include "classroom/program_source.h"
#include "classroom/readable.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// The endings of the files that a task is made of.
constexpr std::array TaskEndings = {".md", ".zrm", ".png", ".bmp", ".jpg"};

/// Each text with its length, so that no two lists are alike.
class Hash {
 public:
  void Add(const std::string& text) {
    hash_.addData(QByteArray::number(static_cast<qsizetype>(text.size())) + ':');
    hash_.addData(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  }

  QByteArray Digits() const { return hash_.result().toHex(); }

 private:
  QCryptographicHash hash_{QCryptographicHash::Sha256};
};

/// A file that is too large is not run, so its size is enough.
std::string ContentOf(const fs::path& file) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(file, error);
  if (!error && size > LargestProgram) return std::to_string(size);
  return BytesOf(file).value_or(std::string());
}

void AddTask(Hash& hash, const fs::path& task) {
  std::error_code error;
  if (!fs::is_directory(task, error)) return hash.Add(BytesOf(task).value_or(std::string()));
  std::set<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(task, error)) {
    const QString ending = NameOf(entry.path().extension()).toLower();
    if (std::ranges::find(TaskEndings, ending) != TaskEndings.end()) files.insert(entry.path());
  }
  for (const fs::path& file : files) {
    hash.Add(NameOf(file.filename()).toStdString());
    hash.Add(BytesOf(file).value_or(std::string()));
  }
}

}  // namespace

Fingerprint::Fingerprint(const RunLimits& limits, ScreenSize screen, bool followsLinks, const fs::path& task) {
  Hash hash;
  for (const double number : {limits.Seconds, static_cast<double>(limits.Steps), static_cast<double>(limits.Memory),
                              static_cast<double>(screen.Width), static_cast<double>(screen.Height)})
    hash.Add(std::to_string(number));
  hash.Add(followsLinks ? "links" : "");
  if (!task.empty()) AddTask(hash, task);
  common_ = hash.Digits();
}

std::string Fingerprint::Of(const Pupil& pupil) const {
  Hash hash;
  hash.Add(common_.toStdString());
  hash.Add(ContentOf(pupil.Program));
  if (!pupil.Session.empty()) hash.Add(ContentOf(pupil.Session));
  return hash.Digits().toStdString();
}

}  // namespace zerimo::classroom
