#include "classroom/parts.h"

#include <algorithm>
#include <map>

#include "base/failure.h"
#include "classroom/class_folder.h"
#include "classroom/readable.h"
#include "classroom/record.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

std::string KeyOf(const fs::path& program) { return NameOf(fs::absolute(program)).toStdString(); }

fs::path PicturesOf(fs::path part) { return part += PicturesEnding; }

/// The files of a run's folder that a report shows.
void CopyPictures(const fs::path& from, const fs::path& to) {
  std::error_code error;
  // Of a run that is no longer there.
  fs::remove_all(to, error);
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

/// Gives a record the name that its pupil has now.
void Rename(Json& json, const QString& name, std::string& line) {
  if (TextAt(json, "name") == name) return;
  json["name"] = OrNull(name);
  line = Compact(json);
}

Share ShareIn(const Json& json) {
  Share share;
  share.Wanted = static_cast<std::size_t>(NumberAt(json, "wanted"));
  if (!json.contains("shard")) return share;
  const Json& shard = json["shard"];
  share.Part = {std::max(1, static_cast<int>(NumberAt(shard, "index"))),
                std::max(1, static_cast<int>(NumberAt(shard, "count")))};
  share.All = static_cast<std::size_t>(NumberAt(shard, "programs"));
  return share;
}

}  // namespace

PartFile::PartFile(const fs::path& file, bool resumes, const Share& share, const std::vector<Pupil>& pupils)
    : file_(file), share_(share) {
  // A pipe might wait for ever.
  if (fs::exists(file) && !fs::is_regular_file(file)) throw Failure(FailureKind::FileAccess);
  if (resumes) KeepFitting(pupils);
  stream_.open(file, std::ios::binary | (resumes ? std::ios::app : std::ios::trunc));
  if (!stream_.is_open()) throw Failure(FailureKind::FileAccess);
}

void PartFile::KeepFitting(const std::vector<Pupil>& pupils) {
  std::ifstream stream(file_, std::ios::binary);
  if (!stream.is_open()) return;
  std::map<std::string, const Pupil*> known;
  for (const Pupil& pupil : pupils) known[KeyOf(pupil.Program)] = &pupil;
  FileToSave kept(file_);
  // A last line without an end is half of one.
  for (std::string line; std::getline(stream, line) && !stream.eof();) {
    std::optional<Json> json = ParsedObject(line);
    // Whoever had no program may have handed one in.
    if (!json || TextAt(*json, "result") == WordOf(Result::NoProgram)) continue;
    const std::string program = TextAt(*json, "program").toStdString();
    if (const auto found = known.find(program); found != known.end()) {
      if (found->second->Fingerprint != TextAt(*json, "fingerprint").toStdString()) {
        ++dropped_;
        continue;
      }
      Rename(*json, found->second->Name, line);
    }
    programs_.insert(program);
    lastFolder_ = std::max(lastFolder_, TextAt(*json, "pictures").toUInt());
    line += '\n';
    kept.sputn(line.data(), static_cast<std::streamsize>(line.size()));
  }
  stream.close();
  kept.Save();
}

bool PartFile::Has(const fs::path& program) const { return programs_.contains(KeyOf(program)); }

void PartFile::Add(const PupilRun& run) {
  Json json = JsonOf(run);
  json["program"] = KeyOf(run.Who.Program);
  json["fingerprint"] = run.Who.Fingerprint;
  json["limits"] = JsonOf(run.Limits);
  json["wanted"] = share_.Wanted;
  if (share_.Part.Count > 1)
    json["shard"] = {{"index", share_.Part.Index}, {"count", share_.Part.Count}, {"programs", share_.All}};
  if (!run.Picture.empty()) {
    const std::string folder = std::to_string(++lastFolder_);
    CopyPictures(run.Picture.parent_path(), PicturesOf(file_) / folder);
    json["pictures"] = folder;
  }
  stream_ << Compact(json) << '\n' << std::flush;
  if (!stream_) throw Failure(FailureKind::FileAccess);
}

std::optional<Share> ForEachRun(const fs::path& file, const std::function<void(PupilRun, std::streamoff)>& take) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) return std::nullopt;
  Share share;
  std::size_t lines = 0;
  std::streamoff place = 0;
  for (std::string line; std::getline(stream, line); place += static_cast<std::streamoff>(line.size()) + 1) {
    ++lines;
    const std::optional<Json> json = ParsedObject(line);
    if (!json) continue;
    share = ShareIn(*json);
    take(RunOf(file, *json), place);
  }
  // A program whose line is incomplete is missing.
  share.Wanted = std::max(share.Wanted, lines);
  return share;
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
