#include "classroom/class_folder.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "classroom/readable.h"

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

std::optional<fs::path> SessionOf(const fs::path& program, const std::vector<fs::path>& sessions) {
  auto found = std::ranges::find(sessions, program.stem(), &fs::path::stem);
  if (found == sessions.end())
    found = std::ranges::find(sessions, Folded(program.stem()),
                              [](const fs::path& session) { return Folded(session.stem()); });
  if (found == sessions.end()) return std::nullopt;
  return *found;
}

}  // namespace

std::vector<Pupil> PupilsOf(const fs::path& folder) {
  const std::vector<fs::path> names = VisibleNamesIn(folder);
  std::vector<fs::path> sessions;
  std::ranges::copy_if(names, std::back_inserter(sessions),
                       [](const fs::path& name) { return EndsIn(name, ".session"); });
  std::vector<Pupil> pupils;
  for (const fs::path& name : names) {
    if (!EndsIn(name, ".zrm")) continue;
    const std::optional<fs::path> session = SessionOf(name, sessions);
    pupils.push_back({folder / name, session ? folder / *session : fs::path()});
  }
  return pupils;
}

}  // namespace zerimo::classroom
