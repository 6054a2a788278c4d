#pragma once

#include <filesystem>

#include "desktop/session.h"

namespace zerimo {

/// Puts everything that goes beyond the classic system beside a session; see docs/extensions.md. `folder` is where what
/// the user typed is kept; it is made when it is needed.
void AddExtensions(Session& session, const std::filesystem::path& folder);

}  // namespace zerimo
