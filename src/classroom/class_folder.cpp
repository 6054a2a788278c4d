#include "classroom/class_folder.h"

#include <QHash>
#include <QStringDecoder>
#include <algorithm>
#include <fstream>
#include <optional>
#include <set>
#include <utility>

#include "base/text.h"
#include "classroom/readable.h"
#include "files/disk.h"
#include "files/program_files.h"
#include "files/unicode_text.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

QString Folded(const fs::path& name) { return NameOf(name).toCaseFolded(); }

bool ComesBefore(const fs::path& one, const fs::path& other) {
  return std::make_pair(Folded(one), one) < std::make_pair(Folded(other), other);
}

bool EndsIn(const fs::path& name, const char* ending) { return Folded(name.extension()) == QLatin1String(ending); }

std::vector<fs::path> VisibleNamesIn(const fs::path& folder) {
  std::vector<fs::path> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    const fs::path name = entry.path().filename();
    if (name.native().front() != '.') names.push_back(name);
  }
  std::ranges::sort(names, ComesBefore);
  return names;
}

/// Whether a folder is one that archives from a Mac have beside the pupils', or has the pictures of a report.
bool IsMadeByPrograms(const fs::path& folder) { return folder == "__MACOSX" || EndsIn(folder, PicturesEnding); }

/// Levels of folders below folders, as in an export of a learning platform.
constexpr int DeepestFolder = 4;

std::optional<fs::path> SessionOf(const fs::path& program, const std::vector<fs::path>& sessions) {
  auto found = std::ranges::find(sessions, program.stem(), &fs::path::stem);
  if (found == sessions.end())
    found = std::ranges::find(sessions, Folded(program.stem()),
                              [](const fs::path& session) { return Folded(session.stem()); });
  if (found == sessions.end()) return std::nullopt;
  return *found;
}

/// A folder below belongs to the pupil whose name it has.
void NameAfter(std::vector<Pupil>& pupils, const QString& folder) {
  for (Pupil& pupil : pupils)
    pupil.Name = pupils.size() == 1 ? folder : folder + u'/' + NameOf(pupil.Program.filename());
}

/// The programs of a class folder.
class Walk {
 public:
  Walk(const fs::path& root, bool followsLinks, std::vector<fs::path> apart)
      : root_(Disk::Confined(root, root)), followsLinks_(followsLinks), apart_(std::move(apart)) {}

  std::vector<Pupil> PupilsBelow(const fs::path& folder, const QString& name, int depth) const {
    const std::vector<fs::path> names = VisibleNamesIn(folder);
    std::vector<Pupil> pupils = PupilsDirectlyIn(folder, names);
    if (depth > 0) NameAfter(pupils, name);
    for (const fs::path& each : names) {
      std::error_code error;
      const fs::path place = folder / each;
      if (!fs::is_directory(place, error) || ProgramFiles::IsProgramName(each.string()) || depth == DeepestFolder ||
          IsApart(place))
        continue;
      const bool isLink = fs::is_symlink(place, error);
      // A link to a folder of the class would show its programs twice.
      if (isLink && root_.MayRead(place)) continue;
      if (isLink && !followsLinks_) {
        // A link that is not followed is listed as a program that could not be run.
        pupils.push_back({place, {}});
        continue;
      }
      const QString below = depth == 0 ? NameOf(each) : name + u'/' + NameOf(each);
      try {
        const std::vector<Pupil> inside = PupilsBelow(place, below, depth + 1);
        pupils.insert(pupils.end(), inside.begin(), inside.end());
      } catch (const fs::filesystem_error&) {
        // A folder that can't be read is listed in the same way.
        pupils.push_back({place, {}});
      }
    }
    return pupils;
  }

  /// The folders of the pupils who have handed in none of the programs.
  std::vector<Pupil> PupilsWithout(const std::vector<Pupil>& programs, const fs::path& folder) const {
    std::set<fs::path> with;
    for (const Pupil& pupil : programs) with.insert(*pupil.Program.lexically_relative(folder).begin());
    std::vector<Pupil> pupils;
    for (const fs::path& name : VisibleNamesIn(folder)) {
      const fs::path place = folder / name;
      std::error_code error;
      if (with.contains(name) || IsApart(place) || IsMadeByPrograms(name)) continue;
      if (!fs::is_directory(fs::symlink_status(place, error))) continue;
      pupils.push_back({place / "", {}, NameOf(name)});
    }
    return pupils;
  }

 private:
  bool IsApart(const fs::path& place) const {
    std::error_code error;
    return std::ranges::find(apart_, fs::weakly_canonical(place, error)) != apart_.end();
  }

  std::vector<Pupil> PupilsDirectlyIn(const fs::path& folder, const std::vector<fs::path>& names) const {
    std::vector<fs::path> sessions;
    std::ranges::copy_if(names, std::back_inserter(sessions),
                         [](const fs::path& name) { return EndsIn(name, ".session"); });
    std::vector<Pupil> pupils;
    for (const fs::path& name : names) {
      if (!ProgramFiles::IsProgramName(name.string()) || IsApart(folder / name)) continue;
      const std::optional<fs::path> session = SessionOf(name, sessions);
      pupils.push_back({folder / name, session ? folder / *session : fs::path()});
    }
    return pupils;
  }

  Disk root_;
  bool followsLinks_;
  std::vector<fs::path> apart_;
};

/// The names by which a table may call a program: its place, its file's name, or a folder of the class that it is in.
std::vector<fs::path> KeysOf(const Pupil& pupil) {
  const fs::path place = PlaceOf(pupil);
  std::vector<fs::path> keys = {place, place.filename(), place.stem(), pupil.Program.parent_path().filename()};
  if (place.is_absolute()) return keys;
  for (fs::path folder = place.parent_path(); !folder.empty(); folder = folder.parent_path()) {
    keys.push_back(folder);
    keys.push_back(folder.filename());
  }
  return keys;
}

/// The cells of a line of a table, which may stand between quotes.
QStringList CellsOf(const QString& line, QChar divider) {
  QStringList cells(1);
  bool isQuoted = false;
  for (qsizetype i = 0; i < line.size(); ++i) {
    const bool isQuote = line[i] == u'"';
    if (isQuote && isQuoted && i + 1 < line.size() && line[i + 1] == u'"') {
      cells.last() += line[i++];
    } else if (isQuote) {
      isQuoted = !isQuoted;
    } else if (line[i] == divider && !isQuoted) {
      cells.append(QString());
    } else {
      cells.last() += line[i];
    }
  }
  return cells;
}

/// Most programs for tables save in UTF-8, some in UTF-16 with a mark at the beginning, the others as Windows does in
/// the west.
QString TextOfTable(const std::string& bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  const QStringDecoder::Encoding encoding = QStringDecoder::encodingForData(view).value_or(QStringDecoder::Utf8);
  QStringDecoder decoder(encoding, QStringDecoder::Flag::Stateless);
  QString text = decoder(view);
  if (!decoder.hasError()) return text;
  std::u32string western;
  for (const char byte : bytes) western += CharacterOf(WesternCodePage, static_cast<unsigned char>(byte));
  return QString::fromStdU32String(western);
}

}  // namespace

bool HasNoProgram(const Pupil& pupil) { return !pupil.Program.has_filename(); }

std::vector<Pupil> PupilsOf(const fs::path& folder, bool followsLinks, std::vector<fs::path> apart) {
  const Walk walk(folder, followsLinks, std::move(apart));
  std::vector<Pupil> pupils = walk.PupilsBelow(folder, {}, 0);
  const bool hasFolders =
      std::ranges::none_of(pupils, [&](const Pupil& pupil) { return pupil.Program.parent_path() == folder; });
  if (hasFolders && !pupils.empty()) {
    const std::vector<Pupil> without = walk.PupilsWithout(pupils, folder);
    pupils.insert(pupils.end(), without.begin(), without.end());
    const auto first = [&](const Pupil& pupil) { return *pupil.Program.lexically_relative(folder).begin(); };
    std::ranges::stable_sort(pupils, ComesBefore, first);
  }
  for (Pupil& pupil : pupils) pupil.Place = pupil.Program.lexically_relative(folder);
  return pupils;
}

std::vector<Pupil> PupilsListedIn(const fs::path& list) {
  std::vector<Pupil> pupils;
  std::ifstream stream(list, std::ios::binary);
  if (!stream.is_open()) throw fs::filesystem_error("list", list, std::make_error_code(std::errc::io_error));
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string name(Trimmed(line));
    if (name.empty()) continue;
    const fs::path program = fs::absolute(name);
    std::error_code error;
    fs::path session = fs::path(program).replace_extension(".session");
    if (!fs::is_regular_file(session, error)) session.clear();
    pupils.push_back({program, session, {}, name});
  }
  return pupils;
}

std::size_t TakeNames(std::vector<Pupil>& pupils, const std::string& table) {
  QHash<QString, QString> names;
  for (const QString& line : TextOfTable(table).split(u'\n')) {
    const QChar divider = line.contains(u'\t') ? u'\t' : line.contains(u';') ? u';' : u',';
    const QStringList cells = CellsOf(line, divider);
    const QString file = cells.value(0).trimmed();
    const QString name = cells.value(1).trimmed();
    if (!file.isEmpty() && !name.isEmpty()) names.insert(file.toCaseFolded(), name);
  }
  QHash<QString, int> programs;
  std::size_t named = 0;
  for (Pupil& pupil : pupils) {
    for (const fs::path& key : KeysOf(pupil)) {
      const auto found = names.constFind(Folded(key));
      if (found == names.cend()) continue;
      pupil.Name = *found;
      ++programs[*found];
      ++named;
      break;
    }
  }
  // A pupil with several programs.
  for (Pupil& pupil : pupils) {
    if (programs.value(pupil.Name) > 1) pupil.Name += u'/' + NameOf(pupil.Program.filename());
  }
  return named;
}

}  // namespace zerimo::classroom
