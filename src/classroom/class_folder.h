#pragma once

#include <filesystem>
#include <vector>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// The programs of a folder in the order of their names, whatever their files are; no hidden ones. A session is the
/// file of the same name ending in .session; if none has exactly that name, capitals and small letters do not matter.
/// Fails with `std::filesystem::filesystem_error`.
std::vector<Pupil> PupilsOf(const std::filesystem::path& folder);

}  // namespace zerimo::classroom
