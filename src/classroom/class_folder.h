#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// The programs of a folder and the folders below, those that lie deeper later; a program in a folder below has the
/// folder's name. Each folder is in the order of its names, whatever their files are; no hidden ones. A session is the
/// file of the same name ending in .session; if none has exactly that name, capitals and small letters do not matter.
/// Fails with `std::filesystem::filesystem_error`.
std::vector<Pupil> PupilsOf(const std::filesystem::path& folder);

/// The programs that a file lists, one a line, each with the session beside it. Fails as `PupilsOf` does.
std::vector<Pupil> PupilsListedIn(const std::filesystem::path& list);

/// Names from a table in UTF-8, whose lines are FILE,NAME or FOLDER,NAME; a semicolon does as well. Capitals and the
/// file's ending do not matter.
void TakeNames(std::vector<Pupil>& pupils, const std::string& table);

}  // namespace zerimo::classroom
