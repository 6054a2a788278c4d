#include "classroom/parts.h"

#include <algorithm>

#include "base/failure.h"
#include "classroom/readable.h"
#include "classroom/record.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

std::string KeyOf(const fs::path& program) { return NameOf(fs::absolute(program)).toStdString(); }

fs::path PicturesOf(fs::path part) { return part += ".pictures"; }

/// The files of a run's folder that a report shows.
void CopyPictures(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::create_directories(to, error);
  for (const fs::directory_entry& entry : fs::directory_iterator(from, error)) {
    if (entry.path().extension() != ".png") continue;
    if (const auto bytes = BytesOf(entry.path())) WriteBeside(to / entry.path().filename(), *bytes);
  }
}

PupilRun RunOf(const fs::path& file, const Json& json) {
  PupilRun run = RunIn(json);
  if (json.contains("limits")) run.Limits = LimitsIn(json["limits"]);
  run.Who.Program = fs::path(TextAt(json, "program").toStdU16String());
  const QString folder = TextAt(json, "pictures");
  bool isNumber = false;
  folder.toUInt(&isNumber);
  if (isNumber) run.Picture = PicturesOf(file) / folder.toStdU16String() / "picture.png";
  return run;
}

/// Cuts a file off after its last complete line.
void CutHalfLine(const fs::path& file) {
  std::error_code error;
  const auto size = fs::file_size(file, error);
  if (error || size == 0) return;
  std::ifstream stream(file, std::ios::binary);
  std::uintmax_t whole = 0;
  std::uintmax_t at = 0;
  for (std::string line; std::getline(stream, line);) {
    at += line.size() + 1;
    if (at <= size) whole = at;
  }
  fs::resize_file(file, whole, error);
}

}  // namespace

PartFile::PartFile(const fs::path& file, bool resumes, std::size_t wanted) : file_(file), wanted_(wanted) {
  // A pipe might wait for ever.
  if (fs::exists(file) && !fs::is_regular_file(file)) throw Failure(FailureKind::FileAccess);
  if (resumes) {
    CutHalfLine(file);
    ForEachRun(file, [this](const PupilRun& run, std::streamoff) {
      programs_.insert(KeyOf(run.Who.Program));
      ++count_;
    });
  }
  stream_.open(file, std::ios::binary | (resumes ? std::ios::app : std::ios::trunc));
  if (!stream_.is_open()) throw Failure(FailureKind::FileAccess);
}

bool PartFile::Has(const fs::path& program) const { return programs_.contains(KeyOf(program)); }

void PartFile::Add(const PupilRun& run) {
  const std::string folder = std::to_string(++count_);
  Json json = JsonOf(run);
  json["program"] = KeyOf(run.Who.Program);
  json["limits"] = JsonOf(run.Limits);
  json["wanted"] = wanted_;
  if (!run.Picture.empty()) {
    CopyPictures(run.Picture.parent_path(), PicturesOf(file_) / folder);
    json["pictures"] = folder;
  }
  stream_ << Compact(json) << '\n' << std::flush;
  if (!stream_) throw Failure(FailureKind::FileAccess);
}

std::optional<std::size_t> ForEachRun(const fs::path& file, const std::function<void(PupilRun, std::streamoff)>& take) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) return std::nullopt;
  std::size_t wanted = 0;
  std::size_t lines = 0;
  std::streamoff place = 0;
  for (std::string line; std::getline(stream, line); place += static_cast<std::streamoff>(line.size()) + 1) {
    ++lines;
    const std::optional<Json> json = ParsedObject(line);
    if (!json) continue;
    wanted = static_cast<std::size_t>(NumberAt(*json, "wanted"));
    take(RunOf(file, *json), place);
  }
  // Half a line is a program that is missing.
  return std::max(wanted, lines);
}

std::optional<PupilRun> RunAt(const fs::path& file, std::streamoff place) {
  std::ifstream stream(file, std::ios::binary);
  stream.seekg(place);
  std::string line;
  std::getline(stream, line);
  const std::optional<Json> json = ParsedObject(line);
  return json ? std::optional(RunOf(file, *json)) : std::nullopt;
}

}  // namespace zerimo::classroom
