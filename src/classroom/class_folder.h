#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// The ending of a folder with the pictures of a report, or of a part of one. Such a folder is no pupil's.
constexpr const char* PicturesEnding = ".pictures";

/// The programs of a folder and of the folders below it, deeper ones later; a program in a folder below has the
/// folder's name. Within a folder they are in the order of their names, ignoring case. Anything with a program's
/// name counts as one, unless it is hidden; so does a link to a folder outside, unless such links are followed. A
/// session is the file of the same name ending in .session; if none has exactly that name, capitals and small letters
/// do not matter. If each pupil has a folder, those without a program are among the pupils, by their folders; see
/// `HasNoProgram`. Whatever is in `apart` (canonical paths) belongs to no pupil. Fails with
/// `std::filesystem::filesystem_error`.
std::vector<Pupil> PupilsOf(const std::filesystem::path& folder, bool followsLinks = false,
                            std::vector<std::filesystem::path> apart = {});

/// Whether a pupil has only a folder: the path of the program then ends in a divider.
bool HasNoProgram(const Pupil& pupil);

/// The programs that a file lists, one a line, each with the session beside it. Blanks around a name are ignored. Fails
/// as `PupilsOf` does.
std::vector<Pupil> PupilsListedIn(const std::filesystem::path& list);

/// Names from a table in UTF-8, UTF-16 with a byte order mark, or else in Windows-1252, whose lines are FILE,NAME or
/// FOLDER,NAME; a semicolon or a tab will do too. A file may be named with its folders. Capitals and the file's ending
/// are ignored. Returns how many programs got a name.
std::size_t TakeNames(std::vector<Pupil>& pupils, const std::string& table);

}  // namespace zerimo::classroom
